// SPDX-License-Identifier: MIT
// Any lines as the arguments of the recorder; any text as a list of beats; and sheets of any small pictures.

#include "fuzz/check.h"
#include "tools/record/options.h"
#include "tools/record/sheet.h"

#include <algorithm>
#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

namespace {

void require_sound_beats(std::vector<Millibeats> const& beats) {
    constexpr std::size_t most = 5000; // more take their time and show nothing else
    if (beats.size() > most) return;
    std::vector<Millibeats> sorted = beats;
    std::sort(sorted.begin(), sorted.end());
    fuzz::require(std::adjacent_find(sorted.begin(), sorted.end()) == sorted.end(), "a beat is taken once");
    if (sorted.empty()) return;
    fuzz::require(sorted.front() >= 0 && sorted.back() <= most_beats * one_beat, "beats lie within the longest show");
}

void try_beats(std::string const& text) {
    auto const beats = parse_beats(text);
    if (!beats) return;
    require_sound_beats(*beats);
    std::string again;
    std::size_t const most = std::min<std::size_t>(beats->size(), 50);
    for (std::size_t i = 0; i < most; ++i) again += (i > 0 ? "," : "") + padded_beat((*beats)[i]);
    if (most == 0) return;
    auto const back = parse_beats(again);
    fuzz::require(back && std::equal(back->begin(), back->end(), beats->begin()), "beats read as they are written");
    for (std::size_t i = 0; i < most; ++i) {
        int const frame = frame_at((*beats)[i]);
        fuzz::require(frame >= 0 && (frame == 0 || frame_is_before(frame - 1, (*beats)[i])), "it is the first frame");
    }
}

void try_options(std::string const& text) {
    std::vector<std::string> arguments{recorder_name};
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) arguments.push_back(line);
    std::vector<char const*> argv;
    for (std::string const& argument : arguments) argv.push_back(argument.c_str());
    RecordOptions options;
    auto const status = read_command_line(static_cast<int>(argv.size()), argv.data(), options);
    fuzz::require(!status || *status == 0 || *status == 1, "the status is unset, 0 or 1");
    if (status) return;
    auto const side = [](unsigned int pixels) { return pixels >= 1 && pixels <= 8192; };
    fuzz::require(side(options.width) && side(options.height), "a side has 1 to 8192 pixels");
    fuzz::require(options.samples <= 64, "there are up to 64 samples");
    fuzz::require(options.columns >= 1 && options.columns <= 100, "there are 1 to 100 columns");
    require_sound_beats(options.beats);
    fuzz::require(options.film.rate && options.film.rate->frames > 0 && options.film.rate->seconds > 0,
                  "a rate is above 0");
    PictureSize const size =
        sheet_size(std::max<std::size_t>(options.beats.size(), 1), options.columns, {options.width, options.height});
    fuzz::require(size.width > 0 && size.height > 0, "a sheet has a size");
}

/// @param text  a count, columns, a width and a height, a byte each; the rest are labels
void try_sheet(std::string const& text) {
    if (text.size() < 4) return;
    auto const byte = [&](std::size_t i) { return static_cast<unsigned int>(static_cast<std::uint8_t>(text[i])); };
    unsigned int const count = byte(0) % 5 + 1;
    unsigned int const columns = byte(1) % 100 + 1;
    sf::Vector2u const picture(byte(2) * 4 + 1, byte(3) % 16 + 1);
    sf::Image image;
    image.create(picture.x, picture.y);
    std::vector<SheetCell> const cells(count, {shrink_for_sheet(image), text.substr(4, 200)});
    sf::Image const sheet = make_sheet(cells, columns);
    PictureSize const size = sheet_size(count, columns, picture);
    fuzz::require(sheet.getSize().x == size.width && sheet.getSize().y == size.height, "its size is told in advance");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    fuzz::Quiet const quiet;
    std::string const text(data, data + size);
    try_options(text);
    try_beats(text);
    try_sheet(text);
    return 0;
}
