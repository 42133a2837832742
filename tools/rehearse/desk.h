// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/area.h"
#include "tools/rehearse/content.h"
#include "tools/rehearse/filewatch.h"
#include "tools/rehearse/flycamera.h"
#include "tools/rehearse/gooddata.h"
#include "tools/rehearse/music.h"
#include "tools/rehearse/options.h"
#include "tools/rehearse/overlay.h"
#include "tools/rehearse/panel.h"
#include "tools/rehearse/rehearsal.h"
#include "tools/rehearse/timelineview.h"
#include "tools/rehearse/transport.h"

#include <SFML/Window/Window.hpp>
#include <future>
#include <string>

/// A rehearsal in a window: the show, its music, the panel, and what the keys and the mouse do.
class Desk {
public:
    /// Builds the show of the data as it is.
    /// @param window  open, with its OpenGL context current
    /// @param data    taken already
    Desk(RehearseOptions const& options, sf::Window& window, GoodData& data);

    void Handle(sf::Event const& event);

    /// Draws one frame and shows it.
    /// @param seconds  since the last one
    void Frame(double seconds);

    /// Whether it is to end.
    bool Over() const { return over; }

    /// Whether the sound library does not come back; see RehearsalMusic.
    bool SoundHangs() const { return music.Hangs(); }

    // What the keys do.
    Transport& Place() { return transport; }
    void TogglePlaying() { transport.SetPlaying(!transport.Playing()); }
    void StepScenes(int count);
    void GoToEnd(bool last) { transport.Seek(last ? rehearsal.Frames() - 1 : 0); }
    void ToggleMute();
    void ToggleCalm();
    void ToggleWire();
    void ToggleSamples() { samples = !samples; }
    void SavePicture() { picture_wanted = true; }
    void ToggleCamera();
    void ResetCamera();
    void Rebuild();
    void TogglePanel() { panel = !panel; }
    void ToggleKeys() { keys = !keys; }
    void End() { over = true; }

private:
    void Press(sf::Keyboard::Key code);
    void MoveCamera(sf::Event const& event);
    void TakeChanges();
    void TakeSoundtrack();
    void FollowMusic(bool sought);
    void DrawShow();
    void DrawOverlay(double seconds);
    void WritePicture(Area const& place);
    Area ShowPlace() const;
    void Tell(char const* key) const;
    void Say(std::string const& words) const;

    RehearseOptions const my_options;
    sf::Window& my_window;
    GoodData& my_data;
    Rehearsal rehearsal;
    Transport transport;
    Timeline timeline;
    Waveform waveform;
    std::future<Waveform> next_waveform;
    RehearsalMusic music;
    std::string music_fault;
    FileWatch watch{{"data"}};
    Content content;
    Overlay overlay;
    TimelineView timeline_view;
    LastFrames frames;
    FlyCamera camera;
    DebugCamera view;
    sf::Vector2i mouse;
    int last_frame = 0;      ///< after the last time that passed
    double drift = 0;        ///< of the picture ahead of the sound, smoothed, seconds
    double heard_speed = 0;  ///< that the music was told last; 0 while it stands
    unsigned long calls = 0; ///< of the last frame
    bool samples = true;
    bool mute = false;
    bool panel = true;
    bool keys = false;
    bool picture_wanted = false;
    bool over = false;
};
