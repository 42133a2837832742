#pragma once

namespace kore {

/// Whether sound can be played here, found out by opening the default output of OpenAL and closing it again.
/// A stream that is started without a device spins and floods standard error, so this is asked before there is one.
/// The audio libraries' own complaints are kept off standard error meanwhile.
bool sound_device_available();

} // namespace kore
