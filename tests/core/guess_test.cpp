// What a raw file may contain, by its name, its length and its bytes.
#include "inspect/guess.h"

#include <algorithm>

#include "failure.h"
#include "support/folder.h"
#include "support/raw_frame.h"

namespace tintvert::test {
namespace {

class Guessing : public FolderTest {
protected:
    std::vector<core::Guess> guesses_of(const std::string& name) const
    {
        core::InputFile file(path(name));
        return core::guesses(file);
    }
};

// Smooth pictures: slopes that differ by component.
int64_t slope(std::string_view component, int64_t x, int64_t y)
{
    return component == "Y" || component == "G"    ? 40 + x + y / 2
           : component == "Cb" || component == "B" ? 100 + x / 4
                                                   : 180 - y / 4;
}

TEST_F(Guessing, name_and_length)
{
    save("clip_96x54_25.v210", raw_frame("v210", 96, 54, slope) + raw_frame("v210", 96, 54, slope));
    const std::vector<core::Guess> guesses = guesses_of("clip_96x54_25.v210");
    ASSERT_FALSE(guesses.empty());
    EXPECT_EQ(guesses[0].form->layout, "v210");
    EXPECT_EQ(guesses[0].width, 96);
    EXPECT_EQ(guesses[0].height, 54);
    EXPECT_EQ(guesses[0].frames, 2);
    EXPECT_TRUE(guesses[0].name_tells_layout && guesses[0].name_tells_size);
}

TEST_F(Guessing, picture_alone)
{
    for (const std::string layout : {"v210", "rgb24", "i420"}) {
        save("file", raw_frame(layout, 352, 288, slope));
        std::vector<core::Guess> guesses = guesses_of("file");
        guesses.resize(std::min<size_t>(guesses.size(), 6));
        EXPECT_TRUE(std::ranges::any_of(guesses, [&](const core::Guess& guess) {
            const bool same = guess.form->layout == layout || std::ranges::count(guess.same, layout) > 0;
            return same && guess.width == 352;
        })) << layout;
    }
}

// A length of 0 is 0 frames of any size: the name alone is no guess.
TEST_F(Guessing, empty_file)
{
    save("clip_96x54.v210", "");
    EXPECT_TRUE(guesses_of("clip_96x54.v210").empty());
}

TEST_F(Guessing, nothing_fits)
{
    save("odd", std::string(7, 'a'));
    EXPECT_TRUE(guesses_of("odd").empty());
    EXPECT_THROW(guesses_of("missing"), core::Failure);
}

}  // namespace
}  // namespace tintvert::test
