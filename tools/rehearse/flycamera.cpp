// SPDX-License-Identifier: MIT
#include "tools/rehearse/flycamera.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace {

constexpr float radians_per_pixel = 0.004f;
constexpr float steepest = 1.55f; // radians: straight up there is no right and left

} // namespace

void FlyCamera::StartAt(kore::Vector3<float> const& from, kore::Vector3<float> const& look) {
    eye = from;
    float const x = look.x - from.x;
    float const y = look.y - from.y;
    float const z = look.z - from.z;
    distance = std::max(0.001f, std::hypot(x, y, z));
    yaw = std::atan2(x, -z);
    pitch = std::clamp(std::asin(std::clamp(y / distance, -1.0f, 1.0f)), -steepest, steepest);
}

kore::Vector3<float> FlyCamera::Ahead() const {
    return {std::cos(pitch) * std::sin(yaw), std::sin(pitch), -std::cos(pitch) * std::cos(yaw)};
}

kore::Vector3<float> FlyCamera::Look() const {
    auto const ahead = Ahead();
    return {eye.x + ahead.x * distance, eye.y + ahead.y * distance, eye.z + ahead.z * distance};
}

void FlyCamera::Turn(float x, float y) {
    yaw += x * radians_per_pixel;
    pitch = std::clamp(pitch - y * radians_per_pixel, -steepest, steepest);
}

void FlyCamera::Pull(float x, float y) {
    float const step = distance * 0.002f;
    eye.x -= std::cos(yaw) * x * step;
    eye.z -= std::sin(yaw) * x * step;
    eye.y += y * step;
}

void FlyCamera::Go(float notches) {
    auto const ahead = Ahead();
    float const step = notches * distance * 0.1f;
    eye.x += ahead.x * step;
    eye.y += ahead.y * step;
    eye.z += ahead.z * step;
}

std::string FlyCamera::Lines() const {
    auto const look = Look();
    char text[200];
    std::snprintf(text, sizeof text,
                  "camera->SetPos({%.3ff, %.3ff, %.3ff});\ncamera->SetLookPos({%.3ff, %.3ff, %.3ff});",
                  static_cast<double>(eye.x), static_cast<double>(eye.y), static_cast<double>(eye.z),
                  static_cast<double>(look.x), static_cast<double>(look.y), static_cast<double>(look.z));
    return text;
}
