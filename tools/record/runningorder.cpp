#include "tools/record/runningorder.h"

#include <algorithm>
#include <cctype>

namespace {

std::string lower_case(std::string text) {
    for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

// As the scene's unit is called: the name without blanks, but for the scene whose unit is named after its effect.
std::string stem_of(std::string const& name) {
    if (name == "Tunnelgate") return "wire";
    std::string stem = lower_case(name);
    std::erase(stem, ' ');
    return stem;
}

} // namespace

RunningOrder running_order(kore::Demo& demo) {
    RunningOrder order;
    int first = 0;
    for (auto const& scene : demo.GetScenes()) {
        order.push_back({scene->Name(), stem_of(scene->Name()), first, scene->GetLength()});
        first += scene->GetLength();
    }
    return order;
}

ScenePlace const* find_scene(RunningOrder const& order, std::string const& name) {
    std::string const wanted = lower_case(name);
    for (ScenePlace const& place : order) {
        if (wanted == place.stem || wanted == lower_case(place.name)) return &place;
    }
    return nullptr;
}

ScenePlace const* scene_at(RunningOrder const& order, Millibeats at) {
    for (ScenePlace const& place : order) {
        if (at < place.End()) return &place;
    }
    return nullptr;
}

std::string scene_list(RunningOrder const& order) {
    std::string list;
    for (ScenePlace const& place : order) list += (list.empty() ? "" : ", ") + place.stem;
    return list;
}
