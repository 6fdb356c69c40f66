// PPM, PAM, BMP and Y4M files that are malformed or truncated, and one of each that is not.
#include "failure.h"
#include "io/pictures/bmp.h"
#include "io/pictures/pnm.h"
#include "io/sources.h"
#include "support/folder.h"

namespace tintvert::test {
namespace {

using namespace core;

class Files : public FolderTest {
protected:
    // What `read` makes of the file: the code of its Failure, if it throws one.
    template <class Read>
    Exit code_of(const std::string& bytes, Read read) const
    {
        save("file", bytes);
        try {
            read(InputFile(path("file")));
        } catch (const Failure& failure) {
            EXPECT_NE(std::string(failure.what()).find("file"), std::string::npos) << failure.what();
            return failure.code();
        }
        return Exit::done;
    }
};

TEST_F(Files, pnm)
{
    const auto code = [&](const std::string& bytes) {
        return code_of(bytes, [](InputFile file) {
            while (read_pnm(file)) continue;
        });
    };
    EXPECT_EQ(code("P6 1 1 255\nabc"), Exit::done);
    for (const std::string bytes :
         {"P", "P5 1 1 255\nx", "P6", "P6 1", "P6 x 1 255\nabc", "P6 1 1 0\nabc", "P6 1 1 65536\nabc", "P6 1 1 255\nab",
          "P6 -1 1 255\nabc", "P6 16384 16384 65535\n", "P7\nWIDTH 1\n",
          "P7\nWIDTH 1\nHEIGHT 1\nDEPTH 1\nMAXVAL 255\nTUPLTYPE GRAYSCALE\nENDHDR\nx",
          "P7\nWIDTH 1\nHEIGHT 1\nDEPTH 9\nMAXVAL 255\nENDHDR\nx"})
        EXPECT_EQ(code(bytes), Exit::no_file) << bytes;
}

TEST_F(Files, a_ppm_sample_by_sample)
{
    save("file", std::string("P6 1 1 31\n\x1f\x0f\x00", 13));
    InputFile file(path("file"));
    const std::unique_ptr<Picture> picture = read_pnm(file);
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->bytes, (std::vector<uint8_t>{255, 123, 0, 255}));
    EXPECT_EQ(read_pnm(file), nullptr);
}

TEST_F(Files, bmp)
{
    for (const std::string& bytes :
         {std::string(), std::string("BM"), std::string(200, 'B'), "BM" + std::string(60, '\0')})
        EXPECT_EQ(code_of(bytes, [](InputFile file) { read_bmp(file); }), Exit::no_file) << bytes.size();

    Picture picture(3, 2);
    for (size_t i = 0; i < picture.bytes.size(); ++i) picture.bytes[i] = static_cast<uint8_t>(i * 11);
    OutputFile written(path("file"));
    write_bmp(written, picture, true);
    written.commit();
    InputFile file(path("file"));
    EXPECT_EQ(read_bmp(file).bytes, picture.bytes);
}

TEST_F(Files, y4m)
{
    const auto code = [&](const std::string& bytes) {
        return code_of(bytes, [](InputFile file) {
            const auto clip = y4m_source(std::move(file));
            FrameForm form = scalar_version(clip->layout(), clip->size());
            std::vector<uint8_t> frame(form.bytes());
            clip->expect(form, 0);
            while (clip->read(frame)) continue;
        });
    };
    const std::string header = "YUV4MPEG2 W8 H4 F25:1 C420jpeg\n", frame = "FRAME\n" + std::string(48, 'x');
    EXPECT_EQ(code(header + frame), Exit::done);
    for (const std::string& bytes :
         {std::string(), std::string("YUV4MPEG3 W8 H4\n"), std::string("YUV4MPEG2 W8 H4"), "YUV4MPEG2 H4\n" + frame,
          "YUV4MPEG2 W0 H4\n" + frame, "YUV4MPEG2 W8x H4\n" + frame, "YUV4MPEG2 W8 H4 C444\n" + frame,
          header + "FRAMX\n" + frame.substr(6)})
        EXPECT_EQ(code(bytes), Exit::no_file) << bytes;
    EXPECT_EQ(code(header + frame.substr(0, 50)), Exit::unsafe);
}

}  // namespace
}  // namespace tintvert::test
