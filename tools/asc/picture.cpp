// SPDX-License-Identifier: MIT
#include "tools/asc/picture.h"

#include "effekt/simplemodel.h"
#include "kore/camera.h"
#include "runtime/frame.h"
#include "tools/lettering/lettering.h"
#include "tools/offscreen/framebuffer.h"
#include "tools/offscreen/offscreencontext.h"

#include <GL/gl.h>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace asc {

namespace {

constexpr unsigned int caption = 22, gap = 8; // pixels, on a sheet

sf::Vector2u cell_of(unsigned int panel) { return {2 * panel + 3 * gap, panel + caption + gap}; }

/// A picture to draw into, in the show's OpenGL state.
struct Target {
    OffscreenContext context;
    Framebuffer framebuffer;

    bool Open(unsigned int width, unsigned int height) {
        if (!context.Open()) return false;
        if (!framebuffer.Create(width, height, std::min(4u, Framebuffer::MostSamples()))) return false;
        init_gl();
        return true;
    }
};

void clear_to(float grey) {
    glClearColor(grey, grey, grey, 0);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}

/// The library of the show with this object alone.
kore::AscModel_ptr library_of(Object const& object) {
    auto const vertices = std::make_unique<GLfloat[][3]>(object.vertices.size());
    auto const faces = std::make_unique<int[][3]>(object.faces.size());
    auto const edges = std::make_unique<int[][3]>(object.faces.size());
    for (std::size_t i = 0; i < object.vertices.size(); ++i) {
        Vec3 const& p = object.vertices[i];
        std::ranges::transform(std::array{p.x, p.y, p.z}, vertices[i],
                               [](double v) { return static_cast<GLfloat>(v); });
    }
    for (std::size_t i = 0; i < object.faces.size(); ++i) {
        std::ranges::copy(object.faces[i].v, faces[i]);
        std::ranges::copy(object.faces[i].edge, edges[i]);
    }
    auto models = std::make_shared<kore::AscModel>("");
    int const count = static_cast<int>(object.faces.size());
    models->GenList(object.name, static_cast<int>(object.vertices.size()), count, count, vertices.get(), faces.get(),
                    edges.get());
    return models;
}

kore::Vector3<float> vector_of(Vec3 v) {
    return {static_cast<float>(v.x), static_cast<float>(v.y), static_cast<float>(v.z)};
}

Vec3 turned(Vec3 p, Vec3 degrees) {
    auto const rotate = [](double& a, double& b, double angle) {
        double const c = std::cos(angle * std::numbers::pi / 180.0), s = std::sin(angle * std::numbers::pi / 180.0);
        double const was = a;
        a = c * was - s * b;
        b = s * was + c * b;
    };
    rotate(p.x, p.y, degrees.z);
    rotate(p.z, p.x, degrees.y);
    rotate(p.y, p.z, degrees.x);
    return p;
}

/// How to turn a mesh for its panel: flat ones not at all, others to the side that shows most of them. The first
/// side, upper right, is used unless another shows a tenth more.
Vec3 best_turn(Object const& object, bool flat) {
    if (flat) return {};
    Vec3 best;
    double most = 0.0;
    for (Vec3 const& turn : {Vec3{25, -30, 0}, Vec3{25, 30, 0}, Vec3{-25, -30, 0}, Vec3{-25, 30, 0}}) {
        double seen = 0.0;
        for (Face const& face : object.faces) seen += std::abs(turned(face_normal(object, face), turn).z);
        if (seen < 1.1 * most) continue;
        most = seen;
        best = turn;
    }
    return best;
}

/// Looks at the middle of the object without perspective, so that all of it is seen.
void look_at_panel(Object const& object, bool flat) {
    Box const box = box_of(object);
    Vec3 const middle = (box.low + box.high) * 0.5;
    Vec3 const turn = best_turn(object, flat);
    constexpr double stretch = 4.0 / 3.0;
    double reach = 1e-9, depth = 1e-9;
    for (Vec3 const& p : object.vertices) {
        Vec3 const q = turned(p - middle, turn);
        reach = std::max({reach, stretch * std::abs(q.x), std::abs(q.y)});
        depth = std::max({depth, reach, 1.1 * std::abs(q.z)});
    }
    double const half = reach / 0.92;
    glMatrixMode(GL_PROJECTION);
    glOrtho(-half / stretch, half / stretch, -half, half, -depth, depth);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    glRotated(turn.x, 1, 0, 0);
    glRotated(turn.y, 0, 1, 0);
    glTranslated(-middle.x, -middle.y, -middle.z);
}

/// Black faces with white lines, or white ones with the lines shown black and all others grey.
void draw_panel(Object const& object, kore::AscModel_ptr const& models, bool solid) {
    bool const flat = box_of(object).IsFlat();
    look_at_panel(object, flat);
    clear_to(1);
    effect::SimpleModel model(models, object.name, "");
    model.SetColor(solid ? 0 : 1);
    model.DrawWireframe(false);
    glPolygonOffset(2, 2);
    model.Draw();
    if (!solid) {
        glPolygonOffset(1, 1);
        glPolygonMode(GL_FRONT_AND_BACK, GL_LINE);
        glColor3f(2 / 3.f, 2 / 3.f, 2 / 3.f);
        glCallList(models->ModelByIndex(0));
        glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    }
    model.DrawSolid(false);
    model.DrawWireframe(!solid || !flat);
    model.Draw();
}

/// The mean of pictures shifted by thirds of a pixel, because some drivers smooth faces but not lines.
template<typename Draw>
sf::Image smoothed(Target const& target, unsigned int size, Draw draw) {
    std::vector<unsigned int> sum(std::size_t{4} * size * size);
    double const third = 2.0 / 3.0 / size; // the picture is 2 wide
    for (int i = 0; i < 9; ++i) {
        glMatrixMode(GL_PROJECTION);
        glLoadIdentity();
        int const right = i % 3 - 1, up = i / 3 - 1;
        glTranslated(third * right, third * up, 0);
        draw();
        sf::Image const picture = target.framebuffer.Read();
        std::transform(sum.begin(), sum.end(), picture.getPixelsPtr(), sum.begin(), std::plus{});
    }
    std::vector<sf::Uint8> mean(sum.size());
    std::ranges::transform(sum, mean.begin(), [](unsigned int s) { return static_cast<sf::Uint8>(s / 9); });
    sf::Image picture;
    picture.create(size, size, mean.data());
    return picture;
}

} // namespace

std::optional<sf::Image> draw_view(std::vector<Object> const& objects, View const& view, unsigned int width,
                                   unsigned int height) {
    Target target;
    if (!target.Open(width, height)) return std::nullopt;
    clear_to(view.white ? 0 : 1);
    effect::Camera camera;
    camera.SetPos(vector_of(view.camera));
    camera.SetLookPos(vector_of(view.look));
    camera.Draw();
    for (Object const& object : objects) {
        kore::AscModel_ptr const models = library_of(object);
        effect::SimpleModel model(models, object.name, "");
        model.SetPos(vector_of(view.at));
        model.SetRot(vector_of(view.turn));
        model.SetScale(vector_of(view.scale));
        model.SetColor(view.white ? 1 : 0);
        model.DrawWireframe(view.lines && !view.all_lines);
        model.Draw();
        if (!view.lines || !view.all_lines) continue;
        model.SetColor(view.white ? 0 : 1);
        glPolygonMode(GL_FRONT_AND_BACK, GL_LINE);
        model.Draw();
        glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    }
    return target.framebuffer.Read();
}

PictureSize sheet_size(std::size_t count, unsigned int columns, unsigned int panel) {
    std::uint64_t const in_row = std::min<std::uint64_t>(columns, count);
    sf::Vector2u const cell = cell_of(panel);
    return {in_row * cell.x, (count + in_row - 1) / in_row * cell.y};
}

std::optional<sf::Image> draw_sheet(std::vector<Object> const& objects, unsigned int columns, unsigned int panel) {
    Target target;
    if (!target.Open(panel, panel)) return std::nullopt;
    glEnable(GL_POLYGON_OFFSET_FILL);
    glEnable(GL_POLYGON_OFFSET_LINE);
    glDepthFunc(GL_LEQUAL);

    auto const count = static_cast<unsigned int>(objects.size());
    columns = std::min(columns, count);
    PictureSize const size = sheet_size(count, columns, panel);
    sf::Image sheet;
    sheet.create(static_cast<unsigned int>(size.width), static_cast<unsigned int>(size.height),
                 sf::Color(225, 225, 225));
    for (unsigned int i = 0; i < count; ++i) {
        Object const& object = objects[i];
        kore::AscModel_ptr const models = library_of(object);
        unsigned int const x = i % columns * cell_of(panel).x + gap, y = i / columns * cell_of(panel).y + gap;
        sheet.copy(smoothed(target, panel, [&] { draw_panel(object, models, true); }), x, y);
        sheet.copy(smoothed(target, panel, [&] { draw_panel(object, models, false); }), x + panel + gap, y);
        write_text(sheet, x, y + panel + 4, 1, object.name + "  " + std::to_string(object.faces.size()) + " faces");
    }
    return sheet;
}

} // namespace asc
