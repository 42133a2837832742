// SPDX-License-Identifier: MIT
#include "main.h"

#include "kore/music-sfml.h"
#include "kore/reportedplaces.h"
#include "runtime/awakescreen.h"
#include "runtime/datafolder.h"
#include "runtime/deadline.h"
#include "runtime/environment.h"
#include "runtime/frame.h"
#include "runtime/modekeeper.h"
#include "runtime/opening.h"
#include "runtime/resources.h"
#include "runtime/stepper.h"
#include "runtime/stopsignal.h"
#include "runtime/streams.h"
#include "runtime/timing.h"
#include "show/datacheck.h"
#include "show/show.h"

#include <GL/gl.h>
#include <exception>
#include <iostream>
#include <optional>
#include <unistd.h>
#include <utility>

bool quit = false;

namespace {

constexpr int music_frequency = 48000; // Hz
constexpr int last_beat = 9998;        // safety stop
bool sound_hangs = false;              // at the end of the show

struct HeldKey {
    sf::Keyboard::Key key;
    std::uint64_t movement;
};

// clang-format off
constexpr HeldKey held_keys[] = {
    {sf::Keyboard::Z,     movement_z_out},
    {sf::Keyboard::A,     movement_z_in},
    {sf::Keyboard::Up,    movement_y_up},
    {sf::Keyboard::Down,  movement_y_down},
    {sf::Keyboard::Right, movement_x_right},
    {sf::Keyboard::Left,  movement_x_left},
    {sf::Keyboard::S,     movement_rot_y_up},
    {sf::Keyboard::F,     movement_rot_y_down},
    {sf::Keyboard::E,     movement_rot_x_right},
    {sf::Keyboard::D,     movement_rot_x_left},
    {sf::Keyboard::X,     movement_rot_z_fw},
    {sf::Keyboard::V,     movement_rot_z_bw},
};
// clang-format on

std::uint64_t movement_of(sf::Keyboard::Key key) {
    for (HeldKey const& held : held_keys) {
        if (held.key == key) return held.movement;
    }
    return 0;
}

struct PressedKey {
    sf::Keyboard::Key key;
    void (*act)(Controls& controls);
};

void toggle_pause(Controls& c) {
    c.pauses.Toggle(c.now);
    music_play(c.music, !c.pauses.Paused());
}

constexpr PressedKey pressed_keys[] = {
    {sf::Keyboard::P, toggle_pause},
    {sf::Keyboard::R, [](Controls& c) { c.view.ResetRotation(); }},
    {sf::Keyboard::C, [](Controls& c) { c.view.ToggleFree(); }},
    {sf::Keyboard::T, [](Controls& c) { c.view.Faster(); }},
    {sf::Keyboard::G, [](Controls& c) { c.view.Slower(); }},
    {sf::Keyboard::O, [](Controls& c) { c.view.ToggleTarget(); }},
    {sf::Keyboard::L, [](Controls&) {}}, // Deliberate: known, and does nothing
};

bool toggles_full_screen(sf::Event::KeyEvent const& key) {
    return key.code == sf::Keyboard::F11 || (key.alt && key.code == sf::Keyboard::Enter);
}

void key_pressed(Controls& controls, sf::Keyboard::Key key) {
    if (key == sf::Keyboard::Escape) controls.close = true;
    if (!mushroom_mode) return;
    for (PressedKey const& pressed : pressed_keys) {
        if (pressed.key == key) pressed.act(controls);
    }
    controls.view.Hold(movement_of(key));
}

void key_released(Controls& controls, sf::Keyboard::Key key) {
    if (!mushroom_mode) return;
    controls.view.Release(movement_of(key));
    if (key == sf::Keyboard::Period) controls.demo.SkipSceneFw();
    if (key == sf::Keyboard::Comma) controls.demo.SkipSceneBw();
}

} // namespace

void music_init(std::shared_ptr<kore::Music>& music) {
    if (!music_enabled) return;
    if (music->LoadFromFile(soundtrack_file, music_frequency)) {
        kore::report_error(kore::places::music_init, std::string("Couldn't open music from file ") + soundtrack_file);
    }
}

void music_play(std::shared_ptr<kore::Music>& music, bool play) {
    if (!music_enabled || !music->Ready()) return;
    if (play) {
        music->Play();
    } else {
        music->Pause();
    }
}

void frame_counter(float const& now, float& fps) {
    constexpr int intervals_per_line = 11;
    static int frames = 0;
    static float last = 0;
    static int display = 0;
    ++frames;
    float const span = now - last;
    if (span > 0.1) {
        fps = static_cast<float>(frames) / span;
        if (fps_counter && display >= intervals_per_line) {
            std::cout << window_title << ": " << frames << " frames in " << span << " seconds = " << fps << " fps"
                      << std::endl;
            display = 0;
        }
        last = now;
        frames = 0;
        ++display;
    }
}

void handle_event(Controls& controls, sf::Event const& event) {
    switch (event.type) {
    case sf::Event::Resized:
        if (controls.desktop) {
            controls.desktop->Resized(event.size.width, event.size.height);
        } else {
            glViewport(0, 0, static_cast<GLsizei>(event.size.width), static_cast<GLsizei>(event.size.height));
        }
        break;
    case sf::Event::Closed:
        quit = true;
        break;
    case sf::Event::KeyPressed:
        if (controls.desktop && toggles_full_screen(event.key)) controls.desktop->ToggleFullScreen();
        key_pressed(controls, event.key.code);
        break;
    case sf::Event::KeyReleased:
        key_released(controls, event.key.code);
        break;
    case sf::Event::LostFocus:
        controls.view.ReleaseAll();
        break; // the releases go to another window
    default:
        break;
    }
}

unsigned int frame_limit() { return vsync ? 0 : static_cast<unsigned int>(fps_limit_value); }

bool show_over(int beat_count, kore::Demo const& demo) {
    return beat_count > last_beat || quit || stop_requested() || demo.GetFinished();
}

void run_show(sf::Window& window, Settings const& settings, DesktopWindow* desktop) {
    auto const player = std::make_shared<kore::MusicSFML>();
    std::shared_ptr<kore::Music> music = player;
    music_init(music);
    kore::Demo demo(beat_seconds);
    init_demo(demo, music, beat_seconds);
    Stepper stepper(demo, beat_seconds);
    Controls controls{demo, music, {}, {}, desktop};
    float fps = 0;
    Timing timing(settings, *player);
    music_play(music, true);
    timing.Begin();

    while (window.isOpen()) {
        controls.now = timing.Read();
        sf::Event event;
        while (!controls.close && window.pollEvent(event)) handle_event(controls, event);
        if (controls.close) window.close();
        controls.view.Step();
        float const show_time = controls.pauses.ShowTime(controls.now);
        timing.Listen(show_time, controls.pauses.Paused());
        stepper.Update(timing.PictureTime(show_time), fps);
        if (window.setActive(true)) { // a closed window has no context
            stepper.Draw(controls.view);
            if (desktop) desktop->Frame();
        }
        frame_counter(controls.now, fps);
        timing.Wait();
        window.display();
        timing.Shown();
        if (show_over(stepper.State().beat_count, demo)) break;
    }
    deadline::set_for_the_end();
    music->Pause();
    if (fps_counter && settings.pace) timing.Report();
    sound_hangs = player->Hangs();
}

namespace {

/// @return false, after a line, where the data is not what the show needs
bool data_is_good() {
    std::string wrong = check_meshes();
    if (wrong.empty() && music_enabled) {
        wrong = check_soundtrack(soundtrack_file);
        if (!wrong.empty()) wrong += "; -mute plays without it";
    }
    if (!wrong.empty()) std::cerr << wrong << std::endl;
    return wrong.empty();
}

int play(DroppingStreams& streams) {
    if (std::string const missing = enter_data_folder(HARDSILENCE_SHARE, mesh_files().front().name); !missing.empty()) {
        std::cerr << missing << std::endl;
        return 1;
    }
    auto const settings = settings_from_environment();
    if (!settings || !enough_resources()) return 1;
    if ((settings->check && !data_is_good()) || !window_possible()) return 1;
    auto const monitors = find_monitors();
    if (settings->list_monitors) {
        print_monitors(monitors);
        return 0;
    }
    auto const monitor = choose_monitor(*settings, monitors);
    if (!monitor || !opengl_possible()) return 1;
    see_to_full_screen(*settings);
    std::optional<ModeKeeper> keeper;
    if (video_fullscreen == sf::Style::Fullscreen && !settings->desktop) keeper.emplace();
    catch_stop_signals();
    effect::look = look_from_environment();

    LibraryWords words;
    sf::Window window; // not a render window: that one makes OpenGL calls of its own in every frame
    auto desktop = open_window(window, *settings, *monitor);
    words.Release();
    deadline::clear();
    std::optional<AwakeScreen> awake;
    if (desktop) {
        awake.emplace();
        tell_of_slow_drawing();
    }
    init_gl();
    window.setVerticalSyncEnabled(vsync);
    window.setFramerateLimit(settings->pace ? 0 : frame_limit());
    streams.BeImpatient();
    run_show(window, *settings, desktop ? &*desktop : nullptr);
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    open_missing_streams();
    DroppingStreams streams;
    if (auto const status = read_command_line(argc, argv)) return *status;
    try {
        int const status = play(streams);
        if (sound_hangs) _exit(status); // whoever waits for that waits long
        return status;
    } catch (std::exception const& error) {
        std::cerr << "The computer lacks something that the show needs: " << error.what() << std::endl;
        return 1;
    }
}
