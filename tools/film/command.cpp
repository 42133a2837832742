// SPDX-License-Identifier: MIT
#include "tools/film/command.h"

#include <cctype>

namespace {

/// Cuts the music at the film's first and last frame, and adds silence where it is shorter.
std::string sound_filter(EncoderTask const& task) {
    long long const from = task.plan.rate.SampleAt(task.plan.first, task.sample_rate);
    long long const to = task.plan.rate.SampleAt(task.plan.end, task.sample_rate);
    return "atrim=start_sample=" + std::to_string(from) + ":end_sample=" + std::to_string(to) +
           ",asetpts=PTS-STARTPTS,apad=whole_len=" + std::to_string(to - from);
}

using Arguments = std::vector<std::string>;

void append(Arguments& command, Arguments const& more) { command.insert(command.end(), more.begin(), more.end()); }

bool has_sound(EncoderTask const& task) {
    return !task.music.empty() && (!task.arguments.empty() || *task.format->sound);
}

/// The music as the second input, the pictures being the first.
Arguments sound_input(EncoderTask const& task) {
    if (!has_sound(task)) return {};
    return {"-i", task.music, "-map", "0:v", "-map", "1:a", "-af", sound_filter(task)};
}

Arguments tags(EncoderTask const& task) {
    return {"-map_metadata", "-1",
            "-metadata",     "title=Hard Silence",
            "-metadata",     "artist=Quillon",
            "-metadata",     std::string("comment=") + film_notice(task.calm),
            "-fflags",       "+bitexact"};
}

Arguments picture_codec(EncoderTask const& task) {
    return split_arguments(task.arguments.empty() ? task.format->video : task.arguments);
}

/// None where the task's own arguments, which are all in the pictures' part, tell it.
Arguments sound_codec(EncoderTask const& task) {
    return has_sound(task) && task.arguments.empty() ? split_arguments(task.format->sound) : Arguments{};
}

std::string quoted(std::string const& word) {
    std::string text = "'";
    for (char const c : word) text += c == '\'' ? "'\\''" : std::string(1, c);
    return text + "'";
}

std::string array(char const* name, Arguments const& words) {
    std::string line = std::string(name) + "=(";
    for (std::string const& word : words) line += (line.back() == '(' ? "" : " ") + quoted(word);
    return line + ")\n";
}

} // namespace

std::vector<std::string> encoder_command(EncoderTask const& task) {
    // -xerror: otherwise a disk that is full when the file is closed is no failure.
    std::vector<std::string> command = {"ffmpeg", "-nostdin", "-hide_banner", "-loglevel", "error", "-xerror", "-y"};
    append(command, {"-f", "rawvideo", "-pixel_format", "rgb24"});
    append(command, {"-video_size", std::to_string(task.width) + "x" + std::to_string(task.height)});
    append(command, {"-framerate", task.plan.rate.Text(), "-i", "pipe:0"});
    append(command, sound_input(task));
    append(command, tags(task));
    append(command, picture_codec(task));
    append(command, sound_codec(task));
    command.push_back("file:" + task.file);
    return command;
}

std::string encoder_script(EncoderTask const& task, std::string const& home) {
    Arguments sound = sound_input(task);
    append(sound, sound_codec(task));
    return "frames=" + std::to_string(task.plan.first) + ":" + std::to_string(task.plan.end) + "\n" +
           "rate=" + task.plan.rate.Text() + "\n" + "size=" + std::to_string(task.width) + "x" +
           std::to_string(task.height) + "\n" + "home=" + quoted(home) + "\n" + array("video", picture_codec(task)) +
           array("sound", sound) + array("tags", tags(task));
}

std::vector<std::string> split_arguments(std::string const& text) {
    std::vector<std::string> words;
    bool inside = false; // a word
    char quote = 0;
    for (char const c : text) {
        bool const space = !quote && std::isspace(static_cast<unsigned char>(c));
        if (!space && !inside) words.emplace_back();
        inside = !space;
        if (quote == c)
            quote = 0;
        else if (!quote && (c == '\'' || c == '"'))
            quote = c;
        else if (!space)
            words.back() += c;
    }
    return words;
}

char const* film_notice(bool calm) {
    return calm ? "The calm mode: held cuts instead of strobes."
                : "Warning: this show strobes heavily; not for anyone with photosensitive epilepsy.";
}
