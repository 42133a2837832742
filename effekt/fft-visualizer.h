// SPDX-License-Identifier: MIT
#pragma once

#include "kore/musicvisualizer.h"

namespace kore {

/// Power spectrum of the first 512 bytes of each block, by a radix-2 fast Fourier transform.
/// Deliberate: the bytes are taken as signed 8-bit samples, whatever the player's sample format is.
class FftVisualizer final : public MusicVisualizer {
public:
    static constexpr unsigned int points = 512;
    static constexpr unsigned int bins = points / 2 + 1;

    FftVisualizer();

    /// @param data    block of at least 512 bytes; a shorter one is reported on standard output and changes nothing
    /// @param length  bytes in the block
    void Process(char const* data, unsigned int length) override;

    /// 257 floats, the power of each bin, not normalised; the outermost two are divided by 4. Not locked: a reader on
    /// another thread may see a spectrum that is being rewritten.
    float const* GetOutput() const override { return power; }
    static unsigned int GetOutputLength() { return bins; }

    /// The low 9 bits of i in reverse order.
    static unsigned int ReverseBits(unsigned int i);

    /// Takes 512 bytes in bit-reversed order.
    void Prepare(char const* data);

    /// Transforms in place: decimation in time, twiddle factors with a positive exponent
    /// (J. Cooley and J. Tukey, "An algorithm for the machine calculation of complex Fourier series", 1965).
    void Calculate();

    /// Turns the transform into the power spectrum.
    void Output();

private:
    float re[points];
    float im[points];
    unsigned int reversed[points];
    float sine[points / 2];
    float cosine[points / 2];
    float power[bins];
};

} // namespace kore
