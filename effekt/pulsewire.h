// SPDX-License-Identifier: MIT
#pragma once

#include "effekt/blinking.h"
#include "kore/ascmodel.h"
#include "kore/catmullrom.h"
#include "kore/entity.h"

#include <memory>
#include <vector>

namespace effect {

/// A wire of 99 small tori threaded along a spline, faces in one grey and lines in the other.
///
/// Deliberate: the whole wire is issued between one glBegin and its glEnd. What that draws is the driver's choice. By
/// the OpenGL standard (1.1, sections 2.5, 2.6.3, 5.4) the first torus's triangles are cut up four corners at a time
/// and its two pops take the entity's matrices away, the other 98 tori are where they should be, and what the scene
/// draws after the wire is fixed in front of the viewer. Mesa drops every list in the bracket and shows nothing. With
/// Look::standard_wire it issues only the calls that have an effect by the standard.
class PulseWire final : public kore::Entity, public BlinkingWireframe {
public:
    /// Loads "torus2.asc" into the library and takes its object "torus2"; if that fails nothing is drawn.
    /// @param spline  the path, which must hold a point; points added later still count
    PulseWire(std::shared_ptr<kore::CatmullRom> spline, kore::AscModel_ptr models);

    char const* Name() override { return "PulseWire"; }
    void UpdateLogic(kore::StateData const&) override { UpdateBlink(); }

    /// Deliberate: draws faces and lines whatever the two drawing flags say.
    void InternalDraw() override;

private:
    static constexpr int samples = 100; ///< along the spline, both ends counted; the last one is not drawn

    void CompileFirstCorners(std::string const& path);
    void DrawBracketed();
    void DrawStandard();
    void DrawTorus(int i);

    std::shared_ptr<kore::CatmullRom> mySpline;
    /// Deliberate: the samples are stored at construction, and drawing evaluates the spline again.
    std::vector<kore::Vector3<float>> myPoints;
    unsigned int myModel = 0;     ///< display list of the faces
    unsigned int myWireframe = 0; ///< display list of the edges
    bool myStandardCalls;
    unsigned int myFirstCorners = 0; ///< display list of the corners of all faces, without a primitive around them
};

} // namespace effect
