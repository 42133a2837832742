// SPDX-License-Identifier: MIT
#include "score.h"

#include "measure.h"
#include "scratchfolder.h"
#include "soundtrack.h"

#include <SFML/Audio/InputSoundFile.hpp>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <iostream>

namespace soundtrack {

namespace {

/// Runs the render script in one of its modes; false, and what it said on standard error, when it fails.
bool render(std::string const& mode, ScratchFolder const& folder) {
    char const* other = std::getenv("HARDSILENCE_SCORE");
    std::string const score = other != nullptr ? other : HARDSILENCE_SOURCE_DIR "/content/soundtrack";
    std::string said;
    bool const good = !folder.Path().empty() &&
                      measure::run("'" + score + "/render' " + mode + " '" + folder.Path() + "' 2>&1", said) == 0;
    if (!good) std::cerr << said;
    return good;
}

std::vector<Event> list_events() {
    std::vector<Event> all;
    ScratchFolder const folder;
    if (!render("--events", folder)) return all;
    std::ifstream file(folder.Path() + "/events.txt");
    for (Event e; file >> e.beat >> e.voice >> e.beats >> e.level >> e.note >> e.tone >> e.slide >> e.after;)
        all.push_back(e);
    return all;
}

std::vector<Stem> render_stems() {
    std::vector<Stem> all;
    ScratchFolder const folder;
    if (!render("--stems", folder)) return all;
    std::ifstream names(folder.Path() + "/stems.txt");
    for (std::string name; names >> name;) all.push_back({name, {}});
    sf::InputSoundFile file;
    if (!file.openFromFile(folder.Path() + "/stems.wav") || file.getChannelCount() != all.size()) return {};
    std::vector<sf::Int16> samples(4096 * all.size());
    while (std::size_t const count = static_cast<std::size_t>(file.read(samples.data(), samples.size())))
        for (std::size_t i = 0; i < count; ++i)
            all[i % all.size()].signal.push_back(static_cast<float>(samples[i]) / 32768);
    return all;
}

Voices render_voices() {
    Voices all;
    ScratchFolder const folder;
    if (!render("--voices", folder)) return all;
    std::ifstream names(folder.Path() + "/voices.txt");
    for (std::string name; names >> name;) all.names.push_back(name);
    all.signal = decode(folder.Path() + "/voices.wav").left;
    return all;
}

} // namespace

std::vector<Event> const& events() {
    static std::vector<Event> const all = list_events();
    return all;
}

std::vector<Event> events_of(std::vector<std::string> const& voices) {
    std::vector<Event> some;
    for (Event const& event : events())
        if (std::find(voices.begin(), voices.end(), event.voice) != voices.end()) some.push_back(event);
    std::stable_sort(some.begin(), some.end(), [](Event const& a, Event const& b) { return a.beat < b.beat; });
    return some;
}

std::vector<int> notes_at(std::vector<Event> const& events, double beat) {
    std::vector<int> notes;
    for (Event const& event : events)
        if (event.beat <= beat && beat < event.beat + event.beats)
            notes.push_back(static_cast<int>(std::lround(event.note)));
    return notes;
}

bool clash(int a, int b) {
    int const apart = std::abs(a - b) % 12;
    return apart == 1 || apart == 11;
}

std::vector<Stem> const& stems() {
    static std::vector<Stem> const all = render_stems();
    return all;
}

std::vector<float> const& stem(std::string const& name) {
    static std::vector<float> const none;
    for (Stem const& one : stems())
        if (one.name == name) return one.signal;
    return none;
}

Voices const& voices() {
    static Voices const all = render_voices();
    return all;
}

} // namespace soundtrack
