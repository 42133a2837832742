// SPDX-License-Identifier: MIT
#include "tools/film/sinks.h"

#include "tools/film/descriptors.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <md5.h>
#include <sys/types.h>
#include <unistd.h>
#include <utility>

namespace {

std::string print(void const* bytes, std::size_t size) {
    if (write_all(STDOUT_FILENO, bytes, size)) return "";
    return std::string("cannot write to standard output: ") + std::strerror(errno);
}

std::string print(std::string const& text) { return print(text.data(), text.size()); }

std::string size_text(unsigned int width, unsigned int height) {
    return std::to_string(width) + "x" + std::to_string(height);
}

class RawSink final : public FrameSink {
public:
    std::string Write(std::span<std::uint8_t const> pixels) override { return print(pixels.data(), pixels.size()); }
};

class Y4mSink final : public FrameSink {
public:
    explicit Y4mSink(std::string header) : my_header(std::move(header)) {}

    std::string Write(std::span<std::uint8_t const> pixels) override {
        std::string const head = std::exchange(my_header, "") + "FRAME\n";
        planes.resize(pixels.size());
        to_luma_and_chroma(pixels, planes);
        std::string const error = print(head);
        return error.empty() ? print(planes.data(), planes.size()) : error;
    }

private:
    std::string my_header; ///< until it is written
    std::vector<std::uint8_t> planes;
};

class DigestSink final : public FrameSink {
public:
    DigestSink(std::string header, int first) : my_header(std::move(header)), next(first) {}

    std::string Write(std::span<std::uint8_t const> pixels) override {
        char digest[MD5_DIGEST_STRING_LENGTH];
        MD5Data(pixels.data(), pixels.size(), digest);
        char line[128];
        std::snprintf(line, sizeof line, "0, %10d, %10d, %8d, %8zu, %s\n", next, next, 1, pixels.size(), digest);
        ++next;
        return print(std::exchange(my_header, "") + line);
    }

private:
    std::string my_header; ///< until it is written
    int next;              ///< frame of the whole film
};

} // namespace

std::unique_ptr<FrameSink> make_raw_sink() { return std::make_unique<RawSink>(); }

std::unique_ptr<FrameSink> make_y4m_sink(FilmPlan const& plan, unsigned int width, unsigned int height) {
    std::string const rate = std::to_string(plan.rate.frames) + ":" + std::to_string(plan.rate.seconds);
    return std::make_unique<Y4mSink>("YUV4MPEG2 W" + std::to_string(width) + " H" + std::to_string(height) + " F" +
                                     rate + " Ip A1:1 C444 XCOLORRANGE=LIMITED\n");
}

std::unique_ptr<FrameSink> make_digest_sink(FilmPlan const& plan, unsigned int width, unsigned int height) {
    std::string const tick = std::to_string(plan.rate.seconds) + "/" + std::to_string(plan.rate.frames);
    return std::make_unique<DigestSink>(
        "#format: frame checksums\n#version: 2\n#hash: MD5\n#tb 0: " + tick +
            "\n#media_type 0: video\n#codec_id 0: rawvideo\n#dimensions 0: " + size_text(width, height) +
            "\n#sar 0: 1/1\n#stream#, dts,        pts, duration,     size, hash\n",
        plan.first);
}

void to_luma_and_chroma(std::span<std::uint8_t const> pixels, std::span<std::uint8_t> planes) {
    // ITU-R BT.709, items 3.2 to 3.4: luma is 0.2126 R + 0.7152 G + 0.0722 B, in steps of 219 and 224 parts of 255 and
    // here of 1/65536.
    constexpr int half = 1 << 15;
    std::size_t const count = pixels.size() / 3;
    for (std::size_t i = 0; i < count; ++i) {
        int const red = pixels[3 * i];
        int const green = pixels[3 * i + 1];
        int const blue = pixels[3 * i + 2];
        int const luma = 11966 * red + 40254 * green + 4064 * blue;
        int const blueness = -6596 * red - 22189 * green + 28785 * blue;
        int const redness = 28785 * red - 26145 * green - 2640 * blue;
        planes[i] = static_cast<std::uint8_t>((luma + (16 << 16) + half) >> 16);
        planes[count + i] = static_cast<std::uint8_t>((blueness + (128 << 16) + half) >> 16);
        planes[2 * count + i] = static_cast<std::uint8_t>((redness + (128 << 16) + half) >> 16);
    }
}
