// SPDX-License-Identifier: MIT
#include "kore/camera.h"
#include "runtime/datafolder.h"
#include "runtime/environment.h"
#include "runtime/frame.h"
#include "runtime/playback.h"
#include "tests/support/glrecorder.h"
#include "tests/support/temp.h"

#include <GL/gl.h>
#include <filesystem>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

TEST(InitGl, SetsTheFixedStateInOrder) {
    gl::reset();
    init_gl();
    EXPECT_EQ(gl::calls(),
              "Enable(TEXTURE_2D) ClearDepth(1) ClearColor(0,0,0,0) DepthMask(1) Enable(DEPTH_TEST) "
              "Hint(PERSPECTIVE_CORRECTION_HINT,NICEST) BlendFunc(SRC_ALPHA,ONE_MINUS_SRC_ALPHA) Enable(BLEND) "
              "Disable(CULL_FACE) MatrixMode(PROJECTION) LoadIdentity Frustum(-1,1,-1,1,1,2000) "
              "Enable(COLOR_MATERIAL) ShadeModel(SMOOTH) MatrixMode(MODELVIEW)");
    EXPECT_TRUE(gl::errors().empty());
}

/// Logs its updates among the OpenGL calls.
class Marker final : public kore::Entity {
public:
    char const* Name() override { return "Marker"; }
    void UpdateLogic(kore::StateData const&) override { glLineWidth(7); }
    void InternalDraw() override { glLineWidth(8); }
    void Draw() override { InternalDraw(); }
};

class DrawFrame : public testing::Test {
protected:
    DrawFrame() {
        gl::reset();
        auto camera = std::make_shared<effect::Camera>();
        camera->SetPos({0, 0, 10});
        auto scene = std::make_shared<kore::Scene>("one");
        scene->AddCamera(std::make_shared<kore::Enabler>(camera, 0, 4, 1.0f, true));
        scene->AddEnabler(std::make_shared<kore::Enabler>(std::make_shared<Marker>(), 0, 4, 1.0f, true));
        demo.AddScene(scene);
        glTranslatef(1, 2, 3); // left over from the frame before
        gl::clear_log();
    }
    static constexpr float beat = 1; // seconds
    kore::Demo demo{beat};
    DebugCamera view;
};

TEST_F(DrawFrame, DrawsThroughTheScenesCameraWhatTheUpdateHasLeft) {
    Stepper stepper(demo, beat);
    stepper.Update(0, 60);
    EXPECT_EQ(gl::calls(), "LineWidth(7)");
    gl::clear_log();
    stepper.Draw(view);
    EXPECT_EQ(gl::calls(), "LoadIdentity PushMatrix ClearColor(0,0,0,0) Clear(COLOR|DEPTH) LookAt(0,0,10,0,0,0,0,1,0) "
                           "LineWidth(8) PopMatrix");
}

TEST_F(DrawFrame, LetsTheFreeCameraStandInForTheScenes) {
    view.ToggleFree();
    Playback(demo, 60, beat).Draw(view);
    EXPECT_EQ(gl::calls(), "LineWidth(7) LoadIdentity LookAt(0,0,0,0,0,-1,0,1,0) PushMatrix ClearColor(0,0,0,0) "
                           "Clear(COLOR|DEPTH) LineWidth(8) PopMatrix");
}

TEST_F(DrawFrame, DrawsNothingOnceTheShowIsOver) {
    kore::StateData end;
    end.beat_count = 4;
    demo.UpdateLogic(end);
    draw_frame(demo, view);
    EXPECT_EQ(gl::calls(), "LoadIdentity");
    EXPECT_TRUE(demo.GetFinished());
}

/// Goes back to the source folder at the end.
class DataFolder : public testing::Test {
protected:
    ~DataFolder() override { fs::current_path(HARDSILENCE_SOURCE_DIR); }

    support::TempFolder const temp;
    std::string const file = "first.asc";
};

TEST_F(DataFolder, IsTheShareFolderIfThereIsNoneElseButOneOfAnotherProject) {
    fs::create_directories(temp.Path("share/data"));
    static_cast<void>(temp.Write("share/data/first.asc", ""));
    fs::create_directories(temp.Path("work/data"));
    static_cast<void>(temp.Write("work/data/other.asc", ""));
    fs::current_path(temp.Path("work"));
    EXPECT_EQ(enter_data_folder(temp.Path("share"), file), "");
    EXPECT_TRUE(fs::equivalent(fs::current_path(), temp.Path("share")));
}

TEST_F(DataFolder, IsLeftWhereItIsIfThereIsNone) {
    fs::current_path(temp.Path(""));
    EXPECT_NE(enter_data_folder("", file), "");
    EXPECT_NE(enter_data_folder(temp.Path("nowhere"), file), "");
    EXPECT_TRUE(fs::equivalent(fs::current_path(), temp.Path("")));
    temp.Write("data", "a file and no folder");
    EXPECT_NE(enter_data_folder("", file), "");
}

} // namespace
