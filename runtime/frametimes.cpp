// SPDX-License-Identifier: MIT
#include "runtime/frametimes.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <sstream>

void FrameTimes::Shown(double now) {
    if (last >= 0) times.push_back(static_cast<float>(now - last));
    last = now;
}

double FrameTimes::Percentile(double share) const {
    if (times.empty()) return 0;
    auto sorted = times;
    auto const rank = static_cast<std::size_t>(std::ceil(share * static_cast<double>(sorted.size())));
    auto const at = sorted.begin() + static_cast<std::ptrdiff_t>(std::clamp<std::size_t>(rank, 1, sorted.size()) - 1);
    std::nth_element(sorted.begin(), at, sorted.end());
    return static_cast<double>(*at);
}

std::string FrameTimes::Report() const {
    std::ostringstream line;
    line << times.size() << " frame times in ms:" << std::fixed << std::setprecision(2);
    for (int const percent : {1, 50, 95, 99}) line << "  " << percent << "% " << Percentile(percent / 100.0) * 1000;
    line << "  longest " << Percentile(1) * 1000;
    return line.str();
}
