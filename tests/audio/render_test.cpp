// SPDX-License-Identifier: MIT
#include "measure.h"
#include "scratchfolder.h"
#include "soundtrack.h"

#include <gtest/gtest.h>

// Takes some ten seconds: Csound plays the whole score.
TEST(SoundtrackRender, FromSourceCorrelatesWithTheFile) {
    ScratchFolder const folder;
    ASSERT_FALSE(folder.Path().empty());
    std::string said;
    std::string const command = "'" HARDSILENCE_SOURCE_DIR "/content/soundtrack/render' '" + folder.Path() + "' 2>&1";
    ASSERT_EQ(measure::run(command, said), 0) << said;

    soundtrack::Recording const again = soundtrack::decode(folder.Path() + "/rump2.ogg");
    soundtrack::Recording const& music = soundtrack::recording();
    ASSERT_EQ(again.Count(), music.Count());
    EXPECT_GT(measure::correlation(again.left, music.left), 0.99);
    EXPECT_GT(measure::correlation(again.right, music.right), 0.99);
    RecordProperty("correlation", std::to_string(measure::correlation(again.left, music.left)));
}
