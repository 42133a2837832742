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

void append(std::vector<std::string>& command, std::vector<std::string> const& more) {
    command.insert(command.end(), more.begin(), more.end());
}

} // namespace

std::vector<std::string> encoder_command(EncoderTask const& task) {
    bool const sound = !task.music.empty() && (!task.arguments.empty() || *task.format->sound);
    std::vector<std::string> command = {"ffmpeg", "-nostdin", "-hide_banner", "-loglevel", "error", "-y"};
    append(command, {"-f", "rawvideo", "-pixel_format", "rgb24"});
    append(command, {"-video_size", std::to_string(task.width) + "x" + std::to_string(task.height)});
    append(command, {"-framerate", task.plan.rate.Text(), "-i", "pipe:0"});
    if (sound) append(command, {"-i", task.music, "-map", "0:v", "-map", "1:a", "-af", sound_filter(task)});
    append(command, {"-map_metadata", "-1", "-metadata", "title=Hard Silence", "-metadata", "artist=Quillon"});
    append(command, {"-metadata", std::string("comment=") + film_notice(task.calm), "-fflags", "+bitexact"});
    if (task.arguments.empty()) {
        append(command, split_arguments(task.format->video));
        if (sound) append(command, split_arguments(task.format->sound));
    } else {
        append(command, split_arguments(task.arguments));
    }
    command.push_back("file:" + task.file);
    return command;
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
