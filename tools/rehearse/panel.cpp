// SPDX-License-Identifier: MIT
#include "tools/rehearse/panel.h"

#include "tools/rehearse/keys.h"
#include "tools/rehearse/timelineview.h"

#include <algorithm>
#include <cstdio>

namespace {

ImVec4 color(unsigned int rgb) {
    constexpr float full = 255;
    return {static_cast<float>(rgb >> 16U & 255U) / full, static_cast<float>(rgb >> 8U & 255U) / full,
            static_cast<float>(rgb & 255U) / full, 1};
}

ImVec4 const dim = color(0x8b93a3);
ImVec4 const bright = color(0xf4f6fa);
ImVec4 const yellow = color(0xffd23f);
ImVec4 const red = color(0xff6b6b);
ImVec4 const blue = color(0x8fb3d9);

void text(ImFont* font, ImVec4 const& paint, std::string const& words) {
    ImGui::PushFont(font);
    ImGui::PushStyleColor(ImGuiCol_Text, paint);
    ImGui::TextUnformatted(words.c_str());
    ImGui::PopStyleColor();
    ImGui::PopFont();
}

template<typename... Values>
std::string format(char const* how, Values... values) {
    char words[160];
    std::snprintf(words, sizeof words, how, values...); // NOLINT(*-format-security)
    return words;
}

/// A name and what it is, in two columns.
void row(Overlay const& overlay, char const* name, std::string const& value, ImVec4 const& paint = bright) {
    text(overlay.Small(), dim, name);
    ImGui::SameLine(96 * overlay.Scale());
    text(overlay.Plain(), paint, value);
}

std::string beat_text(int frame, int first) {
    Millibeats const at = moment_of(frame) - first * one_beat;
    return format("%d.%02d", at / one_beat, at % one_beat / 10);
}

void show_place(Overlay const& overlay, TimelineScene const& scene, Transport const& transport) {
    int const frame = transport.Frame();
    text(overlay.Large(), bright, "BEAT " + beat_text(frame, 0));
    row(overlay, "scene", scene.title, yellow);
    row(overlay, "scene beat", beat_text(frame, scene.first) + " of " + std::to_string(scene.beats));
    int const seconds = frame / recorded_rate;
    row(overlay, "time",
        format("%d:%02d.%02d", seconds / 60, seconds % 60, frame % recorded_rate * 100 / recorded_rate));
    row(overlay, "frame", std::to_string(frame));
    row(overlay, "speed", format("x %g, %s", transport.Speed(), transport.Playing() ? "plays" : "stands"));
    auto const& loop = transport.Looped();
    row(overlay, "loop", loop ? beat_text(loop->from, 0) + " to " + beat_text(loop->to, 0) : "none");
}

void show_measures(Overlay const& overlay, Readings const& readings) {
    auto const ms = [&](float share) { return static_cast<double>(readings.frames.Percentile(share)) * 1000; };
    row(overlay, "frame time", format("%.1f  %.1f  %.1f ms", ms(0.5f), ms(0.95f), ms(1)), blue);
    auto const times = readings.frames.Milliseconds();
    ImGui::PushStyleColor(ImGuiCol_FrameBg, color(0x161a21));
    ImGui::PushStyleColor(ImGuiCol_PlotHistogram, color(0x8fb3d9));
    ImGui::PlotHistogram("##times", times.data(), static_cast<int>(times.size()), 0, nullptr, 0, 50,
                         ImVec2(panel_width(overlay) - 28 * overlay.Scale(), 34 * overlay.Scale()));
    ImGui::PopStyleColor(2);
    row(overlay, "picture - sound", readings.drift ? format("%+.1f ms", *readings.drift * 1000) : "no sound",
        readings.drift ? bright : dim);
    row(overlay, "GL calls", std::to_string(readings.calls));
}

void show_switch(Overlay const& overlay, char const* name, bool on) {
    text(overlay.Small(), on ? yellow : color(0x4a515d), name);
    ImGui::SameLine();
}

} // namespace

void LastFrames::Add(float seconds) {
    times[next] = seconds;
    next = (next + 1) % times.size();
    count = std::min(count + 1, times.size());
}

float LastFrames::Percentile(float share) const {
    if (count == 0) return 0;
    auto sorted = times;
    std::sort(sorted.begin(), sorted.begin() + static_cast<std::ptrdiff_t>(count));
    return sorted[std::min(count - 1, static_cast<std::size_t>(share * static_cast<float>(count)))];
}

std::array<float, 120> LastFrames::Milliseconds() const {
    std::array<float, 120> in_order{};
    for (std::size_t i = 0; i < in_order.size(); ++i) in_order[i] = times[(next + i) % times.size()] * 1000;
    return in_order;
}

float panel_width(Overlay const& overlay) { return 300 * overlay.Scale(); }

void show_panel(Overlay const& overlay, Timeline const& timeline, Transport const& transport,
                Readings const& readings) {
    ImGui::SetNextWindowPos(ImVec2(0, 0));
    float const height = ImGui::GetIO().DisplaySize.y - TimelineView::Height(overlay);
    ImGui::SetNextWindowSize(ImVec2(panel_width(overlay), height));
    ImGui::PushStyleColor(ImGuiCol_WindowBg, color(0x0d0f13));
    ImGui::PushStyleVar(ImGuiStyleVar_WindowBorderSize, 0);
    ImGui::PushStyleVar(ImGuiStyleVar_WindowPadding, ImVec2(14 * overlay.Scale(), 8 * overlay.Scale()));
    ImGui::Begin("panel", nullptr, ImGuiWindowFlags_NoDecoration | ImGuiWindowFlags_NoMove);
    ImGui::PushTextWrapPos(panel_width(overlay) - 14 * overlay.Scale());
    show_place(overlay, timeline.SceneAt(moment_of(transport.Frame()) / one_beat), transport);
    ImGui::Spacing();
    show_measures(overlay, readings);
    ImGui::Spacing();
    show_switch(overlay, "calm", readings.calm);
    show_switch(overlay, "wire", readings.wire);
    show_switch(overlay, "samples", readings.samples);
    show_switch(overlay, "mute", readings.mute);
    show_switch(overlay, "camera", readings.free_camera);
    ImGui::NewLine();
    if (readings.free_camera) text(overlay.Small(), blue, readings.pose);
    if (!readings.progress.empty()) text(overlay.Small(), blue, readings.progress);
    if (!readings.fault.empty()) text(overlay.Small(), red, readings.fault);
    text(overlay.Small(), dim, "F1 shows the keys, Tab hides this");
    ImGui::PopTextWrapPos();
    ImGui::End();
    ImGui::PopStyleVar(2);
    ImGui::PopStyleColor();
}

void show_keys(Overlay const& overlay) {
    ImVec2 const window = ImGui::GetIO().DisplaySize;
    ImGui::SetNextWindowPos(ImVec2(window.x / 2, window.y / 2), ImGuiCond_Always, ImVec2(0.5f, 0.5f));
    ImGui::PushStyleColor(ImGuiCol_WindowBg, color(0x161a21));
    ImGui::PushStyleVar(ImGuiStyleVar_WindowPadding, ImVec2(22 * overlay.Scale(), 16 * overlay.Scale()));
    ImGui::Begin("keys", nullptr, ImGuiWindowFlags_NoDecoration | ImGuiWindowFlags_AlwaysAutoResize);
    for (KeyRow const& key : key_table()) {
        text(overlay.Plain(), yellow, key.name);
        ImGui::SameLine(130 * overlay.Scale());
        text(overlay.Plain(), bright, key.does);
    }
    ImGui::End();
    ImGui::PopStyleVar();
    ImGui::PopStyleColor();
}
