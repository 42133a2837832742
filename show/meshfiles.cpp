// SPDX-License-Identifier: MIT
#include "show/datacheck.h"

namespace {

MeshFile plain(char const* name, char const* object) { return {name, {object}, false}; }
MeshFile shattered(char const* name, char const* object) { return {name, {object}, true}; }

} // namespace

std::span<MeshFile const> mesh_files() {
    static MeshFile const files[] = {
        {"weknow.asc", {"We", "Know", "What", "Are", "Doing", "QUILLONx"}, false},
        {"greetings.asc",
         {"Arbalest", "Pixelherds", "Lanternfly", "Mirevolt", "Quartzine", "Tundrabeat", "Obelisk_K", "Heavy_Cart"},
         false},
        plain("HARD-title.asc", "HARD-title"),
        plain("QUILLONx-title.asc", "QUILLONx-title"),
        plain("SILENCE-title.asc", "SILENCE-title"),
        plain("butt_silhouette.asc", "butt_silhouette"),
        plain("credits.asc", "credits"),
        plain("donut2.asc", "donut2"),
        plain("frameicosahedron.asc", "frameicosahedron"),
        plain("gun_silhouette.asc", "gun_silhouette"),
        plain("hollowsoccerball.asc", "hollowsoccerball"),
        plain("side2_silhouette.asc", "side2_silhouette"),
        plain("sideview_silhouette.asc", "sideview_silhouette"),
        plain("tentacles_silhouette.asc", "tentacles_silhouette"),
        plain("torus2.asc", "torus2"),
        shattered("framecube.asc", "framecube"),
        shattered("frameoctoball.asc", "frameoctoball"),
        shattered("frametetrahedron.asc", "frametetrahedron"),
        shattered("glass.asc", "glass"),
        shattered("gungirl_silhouette.asc", "gungirl_silhouette"),
        shattered("infinity.asc", "infinity"),
        shattered("maltanristi.asc", "maltanristi"),
        shattered("spikeydodecahedron.asc", "spikeydodecahedron"),
    };
    return files;
}
