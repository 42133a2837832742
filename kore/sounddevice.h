#pragma once

namespace kore {

/// Whether sound can be played here, found out by opening the default output of OpenAL and closing it again.
/// A stream that is started without a device spins and floods standard error, so this is called before there is one.
/// Meanwhile the audio libraries' own messages are kept off standard error.
bool sound_device_available();

} // namespace kore
