// SPDX-License-Identifier: MIT
#include "kore/soundtrackfile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kore {

namespace {

using namespace soundtracklimits;

/// Unsigned numbers at places of a text; 0 behind its end.
class Bytes {
public:
    explicit Bytes(std::string_view text) : my_text(text) {}

    bool Says(std::size_t at, std::string_view words) const {
        return at <= my_text.size() && my_text.substr(at, words.size()) == words;
    }
    unsigned int Byte(std::size_t at) const {
        return at < my_text.size() ? static_cast<unsigned char>(my_text[at]) : 0U;
    }
    unsigned int Little16(std::size_t at) const { return Byte(at) | Byte(at + 1) << 8U; }
    unsigned int Little32(std::size_t at) const { return Little16(at) | Little16(at + 2) << 16U; }
    unsigned int Big24(std::size_t at) const { return Byte(at) << 16U | Byte(at + 1) << 8U | Byte(at + 2); }
    bool Ends(std::size_t at) const { return at >= my_text.size(); }

private:
    std::string_view my_text;
};

bool within_limits(unsigned int channels, unsigned int rate) {
    return channels >= 1 && channels <= most_channels && rate >= least_rate && rate <= most_rate;
}

/// The first page holds one packet, the identification header.
bool is_vorbis(Bytes const& bytes) {
    constexpr std::size_t page_header = 27;
    std::size_t const packet = page_header + bytes.Byte(26); // and a byte for each of its segments
    return bytes.Says(0, "OggS") && bytes.Says(packet, "\1vorbis") &&
           within_limits(bytes.Byte(packet + 11), bytes.Little32(packet + 12));
}

/// The first block of metadata is the stream's: 20 bits of rate, 3 of channels less one.
bool is_flac(Bytes const& bytes) {
    return bytes.Says(0, "fLaC") && (bytes.Byte(4) & 0x7fU) == 0 &&
           within_limits((bytes.Byte(20) >> 1U & 7U) + 1, bytes.Big24(18) >> 4U);
}

bool is_wave(Bytes const& bytes) {
    if (!bytes.Says(0, "RIFF") || !bytes.Says(8, "WAVE")) return false;
    std::size_t at = 12;
    while (!bytes.Ends(at) && !bytes.Says(at, "fmt ")) {
        std::size_t const size = bytes.Little32(at + 4);
        at += 8 + size + size % 2;
    }
    return !bytes.Ends(at) && within_limits(bytes.Little16(at + 10), bytes.Little32(at + 12));
}

} // namespace

bool is_soundtrack(std::string_view head) {
    Bytes const bytes(head);
    return is_vorbis(bytes) || is_flac(bytes) || is_wave(bytes);
}

bool may_be_soundtrack(std::string const& path) {
    int const file = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (file < 0) return false;
    struct stat info {};
    bool const fits =
        fstat(file, &info) == 0 && S_ISREG(info.st_mode) && static_cast<std::size_t>(info.st_size) <= most_bytes;
    std::string head(head_bytes, '\0');
    ssize_t const got = fits ? read(file, head.data(), head.size()) : -1;
    close(file);
    return got > 0 && is_soundtrack(std::string_view(head).substr(0, static_cast<std::size_t>(got)));
}

} // namespace kore
