// SPDX-License-Identifier: MIT
#include "tools/rehearse/keys.h"

#include "tools/rehearse/desk.h"

std::span<KeyRow const> key_table() {
    using Key = sf::Keyboard;
    // clang-format off
    static constexpr KeyRow keys[] = {
        {Key::Space,    "Space",     "plays, or stands",                    [](Desk& d) { d.TogglePlaying(); }},
        {Key::Period,   "Period",    "one frame on",                        [](Desk& d) { d.Place().StepFrames(1); }},
        {Key::Comma,    "Comma",     "one frame back",                      [](Desk& d) { d.Place().StepFrames(-1); }},
        {Key::Right,    "Right",     "one beat on",                         [](Desk& d) { d.Place().StepBeats(1); }},
        {Key::Left,     "Left",      "one beat back",                       [](Desk& d) { d.Place().StepBeats(-1); }},
        {Key::Up,       "Up",        "one bar on",                          [](Desk& d) { d.Place().StepBars(1); }},
        {Key::Down,     "Down",      "one bar back",                        [](Desk& d) { d.Place().StepBars(-1); }},
        {Key::PageDown, "Page Down", "one scene on",                        [](Desk& d) { d.StepScenes(1); }},
        {Key::PageUp,   "Page Up",   "one scene back",                      [](Desk& d) { d.StepScenes(-1); }},
        {Key::Home,     "Home",      "to the first frame",                  [](Desk& d) { d.GoToEnd(false); }},
        {Key::End,      "End",       "to the last frame",                   [](Desk& d) { d.GoToEnd(true); }},
        {Key::Hyphen,   "-",         "half as fast, to 1/8",                [](Desk& d) { d.Place().Slower(); }},
        {Key::Equal,    "=",         "twice as fast, to 2",                 [](Desk& d) { d.Place().Faster(); }},
        {Key::N,        "N",         "at normal speed",                     [](Desk& d) { d.Place().NormalSpeed(); }},
        {Key::A,        "A",         "loop from here",                      [](Desk& d) { d.Place().MarkFrom(); }},
        {Key::B,        "B",         "loop to here",                        [](Desk& d) { d.Place().MarkTo(); }},
        {Key::L,        "L",         "no loop",                             [](Desk& d) { d.Place().ClearLoop(); }},
        {Key::M,        "M",         "sound off and on",                    [](Desk& d) { d.ToggleMute(); }},
        {Key::C,        "C",         "calm mode on and off",                [](Desk& d) { d.ToggleCalm(); }},
        {Key::W,        "W",         "wire by the standard, or the driver", [](Desk& d) { d.ToggleWire(); }},
        {Key::S,        "S",         "smooth edges off and on",             [](Desk& d) { d.ToggleSamples(); }},
        {Key::P,        "P",         "saves the picture, named by beat",    [](Desk& d) { d.SavePicture(); }},
        {Key::F,        "F",         "free camera: left button turns, right pulls, wheel goes",
                                                                            [](Desk& d) { d.ToggleCamera(); }},
        {Key::R,        "R",         "free camera back to the scene's",     [](Desk& d) { d.ResetCamera(); }},
        {Key::F5,       "F5",        "builds the show anew",                [](Desk& d) { d.Rebuild(); }},
        {Key::Tab,      "Tab",       "hides the panel, and shows it",       [](Desk& d) { d.TogglePanel(); }},
        {Key::F1,       "F1",        "shows these keys",                    [](Desk& d) { d.ToggleKeys(); }},
        {Key::Escape,   "Escape",    "ends the rehearsal",                  [](Desk& d) { d.End(); }},
    };
    // clang-format on
    return keys;
}
