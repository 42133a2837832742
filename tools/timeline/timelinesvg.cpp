// SPDX-License-Identifier: MIT
#include "tools/timeline/timelinesvg.h"

#include "runtime/beatclock.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <span>

namespace {

constexpr int row_beats = 100;
constexpr double beat_width = 15;
constexpr double margin = 28;
constexpr double label_width = 46; // left of the rows, for the names of the events
constexpr double left = margin + label_width;
constexpr double width = left + row_beats * beat_width + margin;
constexpr double row_gap = 26;
constexpr double heading = 74; // above the rows: title and legend
constexpr double scene_height = 22;
constexpr double ruler_height = 16;
constexpr double wave_height = 44;
constexpr double cue_height = 15;
constexpr double event_height = 12;
constexpr double letter_width = 5.5; // of the smallest letters, on average

/// A stretch of the show that is drawn in one row, beats of the show.
struct Row {
    int from;
    int to;
};

/// The text of an SVG file in the making.
class Drawing {
public:
    void Add(std::string const& text) { svg += text; }

    void Rect(double x, double y, double w, double h, char const* paint, double round = 0) {
        char text[240];
        std::snprintf(text, sizeof text, "<rect x=\"%.1f\" y=\"%.1f\" width=\"%.1f\" height=\"%.1f\" rx=\"%g\" %s/>\n",
                      x, y, w, h, round, paint);
        svg += text;
    }

    void Text(double x, double y, char const* style, std::string const& words) {
        char text[160];
        std::snprintf(text, sizeof text, "<text x=\"%.1f\" y=\"%.1f\" class=\"%s\">", x, y, style);
        svg += text + Escaped(words) + "</text>\n";
    }

    static std::string Escaped(std::string const& words) {
        std::string safe;
        for (char const c : words) {
            if (c == '<')
                safe += "&lt;";
            else if (c == '>')
                safe += "&gt;";
            else if (c == '&')
                safe += "&amp;";
            else
                safe += c;
        }
        return safe;
    }

    std::string svg;
};

std::string color_of(unsigned int rgb) {
    char text[8];
    std::snprintf(text, sizeof text, "#%06x", rgb);
    return text;
}

std::string fill(unsigned int rgb, char const* more = "") { return "fill=\"" + color_of(rgb) + "\"" + more; }

std::string number(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.1f", value);
    return text;
}

std::string beats_of(TimelineScene const& scene) {
    return "beats " + std::to_string(scene.first) + " to " + std::to_string(scene.End());
}

/// Fills rows with whole scenes; a scene that is longer than a row is cut.
std::vector<Row> make_rows(Timeline const& timeline) {
    std::vector<Row> rows;
    for (TimelineScene const& scene : timeline.scenes) {
        if (!rows.empty() && scene.End() - rows.back().from <= row_beats) {
            rows.back().to = scene.End();
            continue;
        }
        for (int from = scene.first; from < scene.End(); from += row_beats) {
            rows.push_back({from, std::min(from + row_beats, scene.End())});
        }
    }
    return rows;
}

/// Draws one row from its upper edge down.
class RowDrawing {
public:
    RowDrawing(Drawing& drawing, Timeline const& timeline, Row const& row, double top)
        : out(drawing), my_timeline(timeline), my_row(row), y(top) {
        for (TimelineScene const& scene : timeline.scenes) {
            if (scene.End() > row.from && scene.first < row.to) scenes.push_back(&scene);
        }
        for (TimelineScene const* scene : scenes) lanes = std::max(lanes, scene->lanes);
    }

    double Height() const {
        return scene_height + ruler_height + wave_height + 6 + lanes * cue_height + 6 +
               static_cast<double>(std::size(event_kinds)) * event_height;
    }

    void Draw(Waveform const& waveform) {
        Frame();
        Ruler();
        Wave(waveform);
        Cues();
        Events();
    }

private:
    double X(double beat) const { return left + (beat - my_row.from) * beat_width; }
    double Clamped(double beat) const { return X(std::clamp<double>(beat, my_row.from, my_row.to)); }

    void Frame() {
        for (TimelineScene const* scene : scenes) {
            double const x = Clamped(scene->first);
            double const w = Clamped(scene->End()) - x;
            out.Rect(x, y, w - 2, Height(), "class=\"scene\"", 5);
            out.Text(x + 9, y + 15.5, "title", scene->title);
            out.Text(x + w - 10, y + 15.5, "small end", beats_of(*scene));
        }
        y += scene_height;
    }

    void Ruler() {
        double const bottom = y + Height() - scene_height;
        for (int beat = my_row.from; beat < my_row.to; ++beat) {
            bool const bar = (beat - my_row.from) % 4 == 0;
            out.Add("<path class=\"" + std::string(bar ? "bar" : "beat") + "\" d=\"M" + number(X(beat)) + " " +
                    number(y + (bar ? 3 : 11)) + "V" + number(bar ? bottom - 3 : y + ruler_height) + "\"/>\n");
            if (bar) out.Text(X(beat) + 3, y + 11, "small", std::to_string(beat));
        }
        y += ruler_height;
    }

    void Wave(Waveform const& waveform) {
        Envelope(waveform, &Waveform::Part::peak, "peak");
        Envelope(waveform, &Waveform::Part::mean, "mean");
        y += wave_height + 6;
    }

    /// One closed line around what a number of the waveform makes above and below the middle.
    void Envelope(Waveform const& waveform, float Waveform::Part::*what, char const* style) {
        auto const part = [&](int i) {
            auto const at = static_cast<std::size_t>(i);
            return at < waveform.parts.size() ? static_cast<double>(waveform.parts[at].*what) : 0.0;
        };
        constexpr int step = 4; // parts that share a point of the line
        double const middle = y + wave_height / 2;
        std::string above;
        std::string below;
        for (int i = my_row.from * Waveform::per_beat; i < my_row.to * Waveform::per_beat; i += step) {
            double loudest = 0;
            for (int k = 0; k < step; ++k) loudest = std::max(loudest, part(i + k));
            std::string const x = number(X((i + step / 2.0) / Waveform::per_beat));
            double const swing = std::min(1.0, loudest) * wave_height / 2;
            char const* const end = i / step % 8 == 7 ? "\n" : ""; // of the line of text
            above += (above.empty() ? "M" : "L") + x + " " + number(middle - swing) + end;
            below.insert(0, end + ("L" + x) + " " + number(middle + swing));
        }
        out.Add("<path class=\"" + std::string(style) + "\" d=\"" + above + below + "Z\"/>\n");
    }

    void Cues() {
        auto const kinds = my_timeline.Kinds();
        for (TimelineScene const* scene : scenes) {
            for (TimelineCue const& cue : scene->cues) {
                auto const kind =
                    static_cast<std::size_t>(std::find(kinds.begin(), kinds.end(), cue.kind) - kinds.begin());
                Bar(cue, cue_color(kind));
            }
        }
        y += lanes * cue_height + 6;
    }

    void Bar(TimelineCue const& cue, unsigned int color) {
        double const x = Clamped(cue.from);
        double const w = Clamped(cue.from + cue.beats) - x;
        if (w <= 0) return;
        double const top = y + cue.lane * cue_height;
        out.Add("<g><title>" + Drawing::Escaped(cue.kind + (cue.model.empty() ? "" : " " + cue.model)) + ", beats " +
                std::to_string(cue.from) + " to " + std::to_string(cue.from + cue.beats) + "</title>\n");
        out.Rect(x + 1, top, w - 4, cue_height - 2.5, fill(color).c_str(), 2.5);
        auto const room = static_cast<std::size_t>(std::max(0.0, (w - 6) / letter_width));
        if (room >= 2) out.Text(x + 5, top + 9.5, "cue", cue.Label().substr(0, room));
        out.Add("</g>\n");
    }

    void Events() {
        for (EventKind const& kind : event_kinds) {
            out.Add("<text x=\"" + number(left - 8) + "\" y=\"" + number(y + 9) +
                    "\" class=\"end event\" style=\"fill: " + color_of(kind.color) + "\">" + kind.name + "</text>\n");
            for (TimelineScene const* scene : scenes) {
                for (TimelineEvent const& event : scene->events) {
                    if (event.type == kind.type) Tick(*scene, event, kind);
                }
            }
            y += event_height;
        }
    }

    /// A tick, and for a strobe how long it flashes, at most to the end of its scene.
    void Tick(TimelineScene const& scene, TimelineEvent const& event, EventKind const& kind) {
        double const at = static_cast<double>(event.at) / one_beat;
        if (at < my_row.from || at >= std::min(my_row.to, scene.End())) return;
        if (event.type == kore::BlinkerInterface::Strobe) {
            double const beats = 2.0 * event.value / recorded_rate / static_cast<double>(beat_seconds);
            double const to = std::min({at + beats, static_cast<double>(scene.End()), static_cast<double>(my_row.to)});
            out.Rect(X(at), y + 3.5, X(to) - X(at) - 2, 4, fill(kind.color, " opacity=\"0.3\"").c_str());
        }
        out.Add("<g><title>" + std::string(kind.name) + " " + std::to_string(event.value) + ", beat " +
                short_beat(event.at) + "</title>\n");
        out.Rect(X(at), y + 1, 2, event_height - 3, fill(kind.color).c_str());
        out.Add("</g>\n");
    }

    Drawing& out;
    Timeline const& my_timeline;
    Row my_row;
    double y;
    std::vector<TimelineScene const*> scenes;
    int lanes = 0;
};

constexpr char const* style = R"(<style>
text { font-family: "DejaVu Sans", Verdana, sans-serif; fill: #d6dae3; }
.name { font-size: 22px; font-weight: bold; fill: #ffffff; }
.title { font-size: 13px; font-weight: bold; fill: #ffffff; }
.small, .label { font-size: 9px; fill: #8b93a3; }
.event { font-size: 9px; }
.cue { font-size: 9px; fill: #ffffff; }
.end { text-anchor: end; }
.scene { fill: #161a21; stroke: #2b313c; }
.bar { stroke: #262c36; }
.beat { stroke: #39414e; }
.peak { fill: #3d4a5e; }
.mean { fill: #8fb3d9; }
</style>
)";

/// What the colours of the bars mean.
void draw_legend(Drawing& out, Timeline const& timeline) {
    double x = left;
    auto const kinds = timeline.Kinds();
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        out.Rect(x, 50, 11, 11, fill(cue_color(i)).c_str(), 2.5);
        out.Text(x + 16, 59, "label", kinds[i]);
        x += 32 + static_cast<double>(kinds[i].size()) * letter_width;
    }
}

std::string summary(Timeline const& timeline) {
    auto const seconds = std::lround(static_cast<float>(timeline.Beats()) * beat_seconds);
    char length[32];
    std::snprintf(length, sizeof length, "%ld:%02ld", seconds / 60, seconds % 60);
    return std::to_string(timeline.scenes.size()) + " scenes, " + std::to_string(timeline.Beats()) + " beats, " +
           std::to_string(beats_per_minute) + " a minute, " + length;
}

} // namespace

std::string timeline_svg(Timeline const& timeline, Waveform const& waveform, std::string const& title) {
    Drawing out;
    double y = heading;
    for (Row const& row : make_rows(timeline)) {
        RowDrawing drawing(out, timeline, row, y);
        drawing.Draw(waveform);
        y += drawing.Height() + row_gap;
    }
    Drawing page;
    std::string const size = number(width) + " " + number(y);
    page.Add("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " + size + "\">\n");
    page.Add(style);
    page.Rect(0, 0, width, y, "fill=\"#0d0f13\"");
    page.Text(left, 36, "name", title);
    page.Text(width - margin, 36, "label end", summary(timeline));
    draw_legend(page, timeline);
    return page.svg + out.svg + "</svg>\n";
}
