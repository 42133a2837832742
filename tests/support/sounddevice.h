// SPDX-License-Identifier: MIT
#pragma once

#include <AL/alc.h>

namespace support {

/// Whether sound can be played here, be it by OpenAL's null output.
inline bool sound_device_available() {
    ALCdevice* const device = alcOpenDevice(nullptr);
    return device && alcCloseDevice(device);
}

} // namespace support
