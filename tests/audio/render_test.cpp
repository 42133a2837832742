#include "measure.h"
#include "soundtrack.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

namespace {

/// A folder of its own that goes away with the test.
class ScratchFolder {
public:
    ScratchFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "soundtrack-XXXXXX").string();
        if (mkdtemp(name.data()) != nullptr) my_path = name;
    }
    ~ScratchFolder() {
        std::error_code ignored;
        if (!my_path.empty()) std::filesystem::remove_all(my_path, ignored);
    }
    ScratchFolder(ScratchFolder const&) = delete;
    ScratchFolder& operator=(ScratchFolder const&) = delete;
    [[nodiscard]] std::string const& Path() const { return my_path; }

private:
    std::string my_path; ///< empty when it could not be made
};

} // namespace

// Takes some ten seconds: Csound plays the whole score.
TEST(SoundtrackRender, FromSourceCorrelatesWithTheFile) {
    ScratchFolder const folder;
    ASSERT_FALSE(folder.Path().empty());
    std::string said;
    std::string const command = "'" HARDSILENCE_SOURCE_DIR "/content/soundtrack/render' '" + folder.Path() + "' '" +
                                folder.Path() + "/again.ogg' 2>&1";
    ASSERT_EQ(measure::run(command, said), 0) << said;

    soundtrack::Recording const again = soundtrack::decode(folder.Path() + "/again.ogg");
    soundtrack::Recording const& music = soundtrack::recording();
    ASSERT_EQ(again.Count(), music.Count());
    EXPECT_GT(measure::correlation(again.left, music.left), 0.99);
    EXPECT_GT(measure::correlation(again.right, music.right), 0.99);
    RecordProperty("correlation", std::to_string(measure::correlation(again.left, music.left)));
}
