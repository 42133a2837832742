// SPDX-License-Identifier: MIT
#include "tools/rehearse/timelineview.h"

#include <algorithm>
#include <cstdio>

namespace {

constexpr ImU32 opaque(unsigned int rgb, unsigned int alpha = 255) {
    return IM_COL32(rgb >> 16U & 255U, rgb >> 8U & 255U, rgb & 255U, alpha);
}

constexpr ImU32 ground = opaque(0x0d0f13);
constexpr ImU32 scene_ground = opaque(0x1a1f28);
constexpr ImU32 current_ground = opaque(0x27303f);
constexpr ImU32 line = opaque(0x2b313c);
constexpr ImU32 dim = opaque(0x8b93a3);
constexpr ImU32 bright = opaque(0xf4f6fa);
constexpr ImU32 peak_color = opaque(0x3d4a5e);
constexpr ImU32 mean_color = opaque(0x8fb3d9);
constexpr ImU32 head_color = opaque(0xffd23f);
constexpr ImU32 loop_color = opaque(0xffd23f, 40);

/// A strip of beats on the screen.
struct Strip {
    float x;
    float y;
    float width;
    float height;
    float from; ///< beat of the show at the left edge
    float to;

    float X(float beat) const { return x + (beat - from) / (to - from) * width; }
    float Clamped(float beat) const { return X(std::clamp(beat, from, to)); }
    float BeatAt(float at) const { return from + (at - x) / width * (to - from); }
};

float beats(Millibeats at) { return static_cast<float>(at) / one_beat; }

/// Draws the parts of a strip.
class StripDrawing {
public:
    StripDrawing(Overlay const& overlay, Strip const& strip)
        : my_overlay(overlay), s(strip), list(*ImGui::GetWindowDrawList()) {}

    void Rect(float from, float to, float top, float bottom, ImU32 color, float round = 0) {
        list.AddRectFilled(ImVec2(s.Clamped(from), top),
                           ImVec2(std::max(s.Clamped(from) + 1, s.Clamped(to) - 1), bottom), color, round);
    }

    /// A text that is cut off at an edge.
    /// @param size  of the letters, pixels; 0 for the font's own
    void Text(ImFont* font, float x, float top, float right, ImU32 color, std::string const& words, float size = 0) {
        if (size <= 0) size = font->FontSize;
        ImVec4 const clip(x, top - 4, right, top + size + 4);
        list.AddText(font, size, ImVec2(x, top), color, words.c_str(), nullptr, 0, &clip);
    }

    void Wave(Waveform const& waveform, float top, float height) {
        float const middle = top + height / 2;
        for (float x = s.x; x < s.x + s.width; x += 1) {
            auto const first = static_cast<std::size_t>(std::max(0.0f, s.BeatAt(x) * Waveform::per_beat));
            auto const last = static_cast<std::size_t>(std::max(0.0f, s.BeatAt(x + 1) * Waveform::per_beat));
            Waveform::Part loudest;
            for (std::size_t i = first; i <= last && i < waveform.parts.size(); ++i) {
                loudest.peak = std::max(loudest.peak, waveform.parts[i].peak);
                loudest.mean = std::max(loudest.mean, waveform.parts[i].mean);
            }
            Bar(x, middle, loudest.peak * height / 2, peak_color);
            Bar(x, middle, loudest.mean * height / 2, mean_color);
        }
    }

    void Tick(TimelineEvent const& event, EventKind const& kind, float top, float bottom) {
        float const x = s.X(beats(event.at));
        list.AddRectFilled(ImVec2(x, top), ImVec2(x + std::max(1.0f, 1.5f * my_overlay.Scale()), bottom),
                           opaque(kind.color));
    }

    void Head(Transport const& transport) {
        if (auto const& loop = transport.Looped()) {
            float const from = beats(moment_of(loop->from));
            float const to = beats(moment_of(loop->to));
            if (to > s.from && from < s.to) {
                list.AddRectFilled(ImVec2(s.Clamped(from), s.y), ImVec2(s.Clamped(to), s.y + s.height), loop_color);
            }
        }
        float const x = s.Clamped(beats(moment_of(transport.Frame())));
        list.AddRectFilled(ImVec2(x - 1, s.y), ImVec2(x + 1, s.y + s.height), head_color);
    }

    Overlay const& my_overlay;
    Strip s;
    ImDrawList& list;

private:
    void Bar(float x, float middle, float half, ImU32 color) {
        if (half > 0.3f) list.AddRectFilled(ImVec2(x, middle - half), ImVec2(x + 1, middle + half), color);
    }
};

bool fires_in(TimelineScene const& scene, TimelineEvent const& event) {
    return event.at >= scene.first * one_beat && event.at < scene.End() * one_beat;
}

void draw_whole_show(StripDrawing& drawing, Timeline const& timeline, Waveform const& waveform,
                     TimelineScene const& current) {
    Strip const& s = drawing.s;
    float const unit = drawing.my_overlay.Scale();
    float const ticks = 3 * unit; // height of an event's row
    for (TimelineScene const& scene : timeline.scenes) {
        auto const from = static_cast<float>(scene.first);
        auto const to = static_cast<float>(scene.End());
        drawing.Rect(from, to, s.y, s.y + s.height, &scene == &current ? current_ground : scene_ground, 3 * unit);
        ImU32 const color = &scene == &current ? bright : dim;
        drawing.Text(drawing.my_overlay.Small(), s.X(from) + 5 * unit, s.y + 3 * unit, s.X(to) - 3, color, scene.title);
    }
    float const event_rows = static_cast<float>(std::size(event_kinds)) * ticks;
    float const wave_top = s.y + 17 * unit;
    drawing.Wave(waveform, wave_top, s.y + s.height - event_rows - 4 * unit - wave_top);
    for (TimelineScene const& scene : timeline.scenes) {
        for (TimelineEvent const& event : scene.events) {
            float top = s.y + s.height - event_rows - 2 * unit;
            for (EventKind const& kind : event_kinds) {
                if (kind.type == event.type && fires_in(scene, event)) drawing.Tick(event, kind, top, top + ticks);
                top += ticks;
            }
        }
    }
}

void draw_ruler(StripDrawing& drawing, float bottom) {
    Strip const& s = drawing.s;
    float const unit = drawing.my_overlay.Scale();
    int const step = s.width / (s.to - s.from) > 30 * unit ? 1 : 4;
    for (int beat = static_cast<int>(s.from); static_cast<float>(beat) < s.to; ++beat) {
        float const x = s.X(static_cast<float>(beat));
        bool const named = beat % step == 0;
        drawing.list.AddLine(ImVec2(x, s.y + (named ? 0 : 10 * unit)),
                             ImVec2(x, beat % 4 == 0 ? bottom : s.y + 14 * unit), line);
        if (named) drawing.Text(drawing.my_overlay.Small(), x + 3, s.y, s.x + s.width, dim, std::to_string(beat));
    }
}

/// @return the label of the cue that the mouse is on
std::string draw_cues(StripDrawing& drawing, Timeline const& timeline, TimelineScene const& scene, float top,
                      float height) {
    float const unit = drawing.my_overlay.Scale();
    float const lane = std::min(16 * unit, height / static_cast<float>(std::max(1, scene.lanes)));
    ImFont* const font = drawing.my_overlay.Small();
    float const letters = std::min(font->FontSize, lane - 1); // many lanes are low ones
    auto const kinds = timeline.Kinds();
    std::string pointed_at;
    for (TimelineCue const& cue : scene.cues) {
        auto const from = static_cast<float>(cue.from);
        auto const to = static_cast<float>(cue.from + cue.beats);
        float const y = top + static_cast<float>(cue.lane) * lane;
        auto const kind = std::find(kinds.begin(), kinds.end(), cue.kind) - kinds.begin();
        drawing.Rect(from, to, y, y + lane - 1, opaque(cue_color(static_cast<std::size_t>(kind))), 2 * unit);
        float const x = drawing.s.Clamped(from);
        float const right = drawing.s.Clamped(to);
        drawing.Text(font, x + 4 * unit, y + (lane - letters) / 2 - 1, right - 3, bright, cue.Label(), letters);
        if (ImGui::IsMouseHoveringRect(ImVec2(x, y), ImVec2(right, y + lane))) {
            pointed_at = cue.kind + (cue.model.empty() ? "" : " " + cue.model) + ", beats " + std::to_string(cue.from) +
                         " to " + std::to_string(cue.from + cue.beats);
        }
    }
    return pointed_at;
}

void draw_events(StripDrawing& drawing, TimelineScene const& scene, float top, float row) {
    ImFont* const font = drawing.my_overlay.Small();
    for (EventKind const& kind : event_kinds) {
        drawing.Text(font, drawing.s.x - 46 * drawing.my_overlay.Scale(), top + (row - font->FontSize) / 2,
                     drawing.s.x - 4, opaque(kind.color, 200), kind.name);
        for (TimelineEvent const& event : scene.events) {
            if (event.type == kind.type && fires_in(scene, event)) drawing.Tick(event, kind, top + 1, top + row - 1);
        }
        top += row;
    }
}

/// Lets the mouse choose a frame of a strip.
std::optional<int> choose(char const* name, Strip const& strip, std::string const& hint) {
    ImGui::SetCursorScreenPos(ImVec2(strip.x, strip.y));
    ImGui::InvisibleButton(name, ImVec2(strip.width, strip.height));
    float const last = std::max(strip.from, strip.to - 0.001f);
    float const beat = std::clamp(strip.BeatAt(ImGui::GetIO().MousePos.x), strip.from, last);
    if (ImGui::IsItemHovered()) {
        std::string const at = "beat " + short_beat(static_cast<Millibeats>(beat * 10) * 100);
        ImGui::SetTooltip("%s", (hint.empty() ? at : at + "\n" + hint).c_str());
    }
    if (!ImGui::IsItemActive()) return std::nullopt;
    return frame_at(static_cast<Millibeats>(beat * one_beat));
}

} // namespace

std::optional<int> TimelineView::Show(Overlay const& overlay, Timeline const& timeline, Waveform const& waveform,
                                      Transport const& transport) {
    float const unit = overlay.Scale();
    ImVec2 const window = ImGui::GetIO().DisplaySize;
    ImGui::SetNextWindowPos(ImVec2(0, window.y - Height(overlay)));
    ImGui::SetNextWindowSize(ImVec2(window.x, Height(overlay)));
    ImGui::PushStyleColor(ImGuiCol_WindowBg, ground);
    ImGui::PushStyleVar(ImGuiStyleVar_WindowBorderSize, 0);
    ImGui::Begin("timeline", nullptr, ImGuiWindowFlags_NoDecoration | ImGuiWindowFlags_NoMove);
    auto const& current = timeline.SceneAt(moment_of(transport.Frame()) / one_beat);
    float const left = 56 * unit;
    float const wide = window.x - left - 14 * unit;
    float const top = window.y - Height(overlay) + 6 * unit;

    Strip const whole{left, top, wide, 72 * unit, 0, static_cast<float>(timeline.Beats())};
    StripDrawing show(overlay, whole);
    draw_whole_show(show, timeline, waveform, current);
    show.Head(transport);

    float const detail_top = top + 79 * unit;
    Strip const scene{left,
                      detail_top,
                      wide,
                      window.y - detail_top - 8 * unit,
                      static_cast<float>(current.first),
                      static_cast<float>(current.End())};
    StripDrawing detail(overlay, scene);
    float const row = 9 * unit;
    float const events_top = scene.y + scene.height - row * static_cast<float>(std::size(event_kinds));
    draw_ruler(detail, scene.y + scene.height);
    float const cues_top = scene.y + 17 * unit;
    std::string const hint = draw_cues(detail, timeline, current, cues_top, events_top - cues_top - 4 * unit);
    draw_events(detail, current, events_top, row);
    detail.Head(transport);

    std::optional<int> chosen = choose("show", whole, "");
    if (auto const in_scene = choose("scene", scene, hint)) chosen = in_scene;
    dragging = chosen.has_value();
    ImGui::End();
    ImGui::PopStyleVar();
    ImGui::PopStyleColor();
    return chosen;
}
