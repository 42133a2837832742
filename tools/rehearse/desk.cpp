// SPDX-License-Identifier: MIT
#include "tools/rehearse/desk.h"

#include "effekt/look.h"
#include "kore/camera.h"
#include "show/show.h"
#include "tools/files/png.h"
#include "tools/files/streams.h"
#include "tools/rehearse/callcount.h"
#include "tools/rehearse/keys.h"

#include <GL/gl.h>
#include <SFML/Graphics/Image.hpp>
#include <SFML/System/Clock.hpp>
#include <algorithm>
#include <cmath>
#include <iostream>
#include <vector>

Desk::Desk(RehearseOptions const& options, sf::Window& window, GoodData& data)
    : my_options(options), my_window(window), my_data(data),
      rehearsal([&](kore::Demo& demo) { my_data.Within([&] { init_demo(demo, nullptr, beat_seconds); }); }),
      transport(rehearsal.Frames()), timeline(make_timeline(rehearsal.Demo(), models.get(), beat_seconds)),
      content(options.content), panel(options.panel) {
    transport.Seek(frame_at(options.at));
    transport.SetPlaying(options.play);
    if (options.mute) ToggleMute();
    TakeSoundtrack();
}

void Desk::Handle(sf::Event const& event) {
    Overlay::Handle(event);
    switch (event.type) {
    case sf::Event::Closed:
        over = true;
        break;
    case sf::Event::KeyPressed:
        Press(event.key.code);
        break;
    default:
        MoveCamera(event);
        break;
    }
}

void Desk::Press(sf::Keyboard::Key code) {
    for (KeyRow const& key : key_table()) {
        if (key.code != code) continue;
        key.act(*this);
        Tell(key.name);
    }
}

void Desk::Tell(char const* key) const {
    if (!my_options.tell) return;
    std::cout << key << ": beat " << padded_beat(moment_of(transport.Frame())) << " frame " << transport.Frame()
              << (transport.Playing() ? " plays" : " stands") << " x" << transport.Speed();
    if (auto const& loop = transport.Looped()) std::cout << " loop " << loop->from << ':' << loop->to;
    std::pair<char const*, bool> const switches[] = {{"calm", effect::look.calm},
                                                     {"wire", effect::look.standard_wire},
                                                     {"samples", samples},
                                                     {"mute", mute},
                                                     {"camera", view.IsFree()},
                                                     {"panel", panel},
                                                     {"keys", keys}};
    for (auto const& [name, on] : switches) {
        if (on) std::cout << ' ' << name;
    }
    std::cout << std::endl;
}

void Desk::Say(std::string const& words) const {
    if (my_options.tell) std::cout << "data: " << words << std::endl;
}

void Desk::StepScenes(int count) {
    auto const& scenes = timeline.scenes;
    int const beat = moment_of(transport.Frame()) / one_beat;
    auto const index = static_cast<int>(&timeline.SceneAt(beat) - scenes.data());
    bool const begun = transport.Frame() > frame_at(scenes[static_cast<std::size_t>(index)].first * one_beat);
    int const to = std::clamp(index + count + (count < 0 && begun ? 1 : 0), 0, static_cast<int>(scenes.size()) - 1);
    transport.Seek(frame_at(scenes[static_cast<std::size_t>(to)].first * one_beat));
}

void Desk::ToggleMute() {
    mute = !mute;
    music.Mute(mute);
}

void Desk::ToggleCalm() {
    effect::look.calm = !effect::look.calm;
    Rebuild();
}

void Desk::ToggleWire() {
    effect::look.standard_wire = !effect::look.standard_wire;
    Rebuild();
}

void Desk::Rebuild() {
    rehearsal.Rebuild();
    transport.SetFrames(rehearsal.Frames());
    timeline = make_timeline(rehearsal.Demo(), models.get(), beat_seconds);
}

void Desk::ToggleCamera() {
    view.ToggleFree();
    if (view.IsFree()) ResetCamera();
}

void Desk::ResetCamera() {
    if (!view.IsFree()) return;
    int const beat = moment_of(transport.Frame()) / one_beat;
    auto const index = static_cast<std::size_t>(&timeline.SceneAt(beat) - timeline.scenes.data());
    auto const enabler = rehearsal.Demo().GetScenes()[index]->GetCamera();
    if (auto* const own = dynamic_cast<effect::Camera*>(enabler->GetEntity().get())) {
        camera.StartAt(own->GetPos(), own->GetLookPos());
    }
    std::cout << camera.Lines() << std::endl;
}

void Desk::MoveCamera(sf::Event const& event) {
    bool const moves = view.IsFree() && !Overlay::HasMouse();
    if (event.type == sf::Event::MouseMoved) {
        sf::Vector2i const now(event.mouseMove.x, event.mouseMove.y);
        auto const x = static_cast<float>(now.x - mouse.x);
        auto const y = static_cast<float>(now.y - mouse.y);
        mouse = now;
        if (moves && sf::Mouse::isButtonPressed(sf::Mouse::Left)) camera.Turn(x, y);
        if (moves && sf::Mouse::isButtonPressed(sf::Mouse::Right)) camera.Pull(x, y);
    }
    if (event.type == sf::Event::MouseWheelScrolled && moves) camera.Go(event.mouseWheelScroll.delta);
    bool const done = event.type == sf::Event::MouseButtonReleased || event.type == sf::Event::MouseWheelScrolled;
    if (moves && done) std::cout << camera.Lines() << std::endl;
}

void Desk::TakeChanges() {
    if (next_waveform.valid() && next_waveform.wait_for(std::chrono::seconds(0)) == std::future_status::ready) {
        waveform = next_waveform.get();
    }
    std::string const progress = content.Progress();
    content.Poll();
    if (content.Progress() != progress) Say(content.Progress().empty() ? "rendered" : content.Progress());
    if (!watch.Changed()) return;
    std::string const fault = my_data.Fault();
    GoodData::Result const meshes = my_data.Take();
    if (meshes == GoodData::Result::New) {
        sf::Clock const clock;
        Rebuild();
        Say("built anew in " + std::to_string(clock.getElapsedTime().asMilliseconds()) + " ms");
    }
    TakeSoundtrack();
    if (my_data.Fault() != fault) Say(my_data.Fault().empty() ? "all is well" : my_data.Fault());
}

void Desk::TakeSoundtrack() {
    if (my_data.TakeSoundtrack() != GoodData::Result::New) return;
    std::string const path = my_data.Soundtrack();
    music_fault = music.Open(path);
    Say("soundtrack" + (music_fault.empty() ? "" : ", " + music_fault));
    heard_speed = 0;
    next_waveform =
        std::async(std::launch::async, [path] { return read_waveform(path, static_cast<double>(beat_seconds)); });
}

void Desk::FollowMusic(bool sought) {
    constexpr double too_far = 0.06; // seconds
    bool const wanted = transport.Playing() && !timeline_view.Dragging();
    if (!wanted) {
        music.Pause();
        heard_speed = 0;
        return;
    }
    double const off = transport.Time() - music.Position();
    drift += (off - drift) * 0.1; // the position is told in steps of some hundredths of a second
    bool const lost = music.Playing() && std::abs(drift) > too_far;
    if (!sought && !lost && heard_speed == transport.Speed()) return;
    heard_speed = transport.Speed();
    drift = 0;
    music.PlayFrom(transport.Frame(), heard_speed);
}

void Desk::Frame(double seconds) {
    frames.Add(static_cast<float>(seconds));
    TakeChanges();
    bool const sought = transport.Frame() != last_frame;
    bool const looped = transport.Advance(seconds);
    last_frame = transport.Frame();
    FollowMusic(sought || looped);
    rehearsal.Seek(last_frame);
    DrawShow();
    if (panel || keys) DrawOverlay(seconds);
    my_window.display();
}

Area Desk::ShowPlace() const {
    auto const size = my_window.getSize();
    Area area{0, 0, static_cast<int>(size.x), static_cast<int>(size.y)};
    if (panel && overlay.Scale() > 0) {
        area.x = static_cast<int>(panel_width(overlay));
        area.width -= area.x;
        area.height -= static_cast<int>(TimelineView::Height(overlay));
    }
    return fitted(area);
}

void Desk::DrawShow() {
    Area const place = ShowPlace();
    int const below = static_cast<int>(my_window.getSize().y) - place.y - place.height; // OpenGL counts from there
    glPushAttrib(GL_SCISSOR_BIT | GL_COLOR_BUFFER_BIT);
    glDisable(GL_SCISSOR_TEST);
    glClearColor(0, 0, 0, 0);
    glClear(GL_COLOR_BUFFER_BIT);
    glPopAttrib();
    glViewport(place.x, below, place.width, place.height);
    glScissor(place.x, below, place.width, place.height);
    glEnable(GL_SCISSOR_TEST);
    samples ? glEnable(GL_MULTISAMPLE) : glDisable(GL_MULTISAMPLE);
    if (view.IsFree()) camera.Apply(view);
    unsigned long const calls_before = issued_calls();
    rehearsal.Draw(view);
    calls = issued_calls() - calls_before;
    glDisable(GL_SCISSOR_TEST);
    if (picture_wanted) WritePicture({place.x, below, place.width, place.height});
    picture_wanted = false;
}

void Desk::WritePicture(Area const& place) {
    auto const width = static_cast<unsigned int>(place.width);
    auto const height = static_cast<unsigned int>(place.height);
    std::vector<sf::Uint8> pixels(std::size_t{4} * width * height);
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glReadPixels(place.x, place.y, place.width, place.height, GL_RGBA, GL_UNSIGNED_BYTE, pixels.data());
    sf::Image image;
    image.create(width, height, pixels.data());
    image.flipVertically();
    std::string const path = my_options.pictures + "/beat_" + padded_beat(moment_of(rehearsal.Frame())) + ".png";
    std::string const error = write_png(path, image);
    if (error.empty())
        std::cout << printable(path) << std::endl;
    else
        complain(rehearse_name, error);
}

void Desk::DrawOverlay(double seconds) {
    auto const size = my_window.getSize();
    overlay.Begin(size.x, size.y, static_cast<float>(seconds));
    if (panel) {
        std::string fault = my_data.Fault();
        if (!music_fault.empty()) fault += (fault.empty() ? "" : "\n") + music_fault;
        show_panel(overlay, timeline, transport,
                   {.frames = frames,
                    .drift = music.Playing() ? std::optional(drift) : std::nullopt,
                    .calls = calls,
                    .calm = effect::look.calm,
                    .wire = effect::look.standard_wire,
                    .samples = samples,
                    .mute = mute,
                    .free_camera = view.IsFree(),
                    .pose = camera.Lines(),
                    .fault = fault,
                    .progress = content.Progress()});
        if (auto const chosen = timeline_view.Show(overlay, timeline, waveform, transport)) transport.Seek(*chosen);
    }
    if (keys) show_keys(overlay);
    overlay.End();
}
