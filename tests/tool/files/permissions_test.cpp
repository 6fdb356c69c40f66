// Files that may not be read and folders that may not be written: one line, exit code 3, and no file.
#include <linux/securebits.h>
#include <sys/prctl.h>

#include "support/packet_maker.h"
#include "tool/noise.h"
#include "tool/png_maker.h"
#include "tool/run.h"

namespace tintvert::test {
namespace {

namespace fs = std::filesystem;

constexpr int still_root = 126;

// Root may do everything, unless its programs start without capabilities.
void as_any_user()
{
    if (geteuid() == 0 && prctl(PR_SET_SECUREBITS, SECBIT_NOROOT) != 0) _exit(still_root);
}

class Permissions : public ToolTest {
protected:
    void SetUp() override
    {
        if (run({"--version"}, as_any_user).code == still_root)
            GTEST_SKIP() << "skipped: root may read and write everything, and cannot be kept from it here";
        save("in.2vuy", noise(1, 64));
        save("in.png", make_png(PngKind{}, 4, 2));
        save("in.ppm", "P6\n2 1\n255\nabcdef");
        save("in.y4m", "YUV4MPEG2 W4 H2 F25:1\nFRAME\n" + noise(2, 12));
        save("in.pcap", framed(Sender{{96, 4}, 250}.frames(1)));
        fs::create_directory(path("shut"));
        save("shut/old.v210", "as it was");
        fs::permissions(path("shut"), fs::perms::owner_read | fs::perms::owner_exec);
    }
    void TearDown() override
    {
        if (fs::exists(path("shut"))) fs::permissions(path("shut"), fs::perms::owner_all);
    }

    void expect_refusal(const std::vector<std::string>& arguments, const std::string& words) const
    {
        const std::set<std::string> before = files_in("");
        const Result result = run(arguments, as_any_user);
        EXPECT_EQ(result.code, 3) << arguments[0];
        EXPECT_EQ(result.err, "tintvert: " + words + ": Permission denied\n") << arguments[0];
        EXPECT_EQ(files_in(""), before) << arguments[0];
        EXPECT_EQ(files_in("shut"), std::set<std::string>{"old.v210"}) << arguments[0];
        EXPECT_EQ(load("shut/old.v210"), "as it was");
    }
};

TEST_F(Permissions, files_that_may_not_be_read)
{
    const std::string raw = path("in.2vuy"), out = path("out"), capture = path("in.pcap");
    for (const std::string& name : files_in("")) fs::permissions(path(name), fs::perms::none);
    fs::permissions(path("shut"), fs::perms::owner_all);
    for (const char* name : {"in.png", "in.ppm", "in.y4m"})
        expect_refusal({"convert", path(name), out, "--to", "rgb24", "-q"}, "cannot read " + path(name));
    for (const char* command : {"view", "bits", "compare"}) {
        std::vector<std::string> words{command, raw, "-l", "2vuy", "-s", "8x4"};
        if (words[0] == "compare") words.insert(words.begin() + 1, raw);
        if (words[0] == "bits") words.insert(words.end(), {"--at", "0,0"});
        if (words[0] == "view") words.insert(words.end(), {"-o", out});
        expect_refusal(words, "cannot read " + raw);
    }
    expect_refusal({"convert", "--from", "2vuy", "--to", "v210", raw, out, "-s", "8x4", "-q"}, "cannot read " + raw);
    expect_refusal({"convert", "tntvt_2vuy_v210", raw, out, "-s", "8x4"}, "cannot read " + raw);
    expect_refusal({"guess", raw}, "cannot read " + raw);
    expect_refusal({"demo", "-i", path("in.png"), "-o", out}, "cannot read " + path("in.png"));
    expect_refusal({"capture", capture, out, "-s", "96x4"}, "cannot read " + capture);
}

TEST_F(Permissions, folders_that_may_not_be_written)
{
    const std::string raw = path("in.2vuy"), png = path("in.png");
    for (const char* name : {"shut/new.v210", "shut/old.v210"})
        expect_refusal({"convert", "--from", "2vuy", "--to", "v210", raw, path(name), "-s", "8x4", "-q"},
                       "cannot write " + path(name));
    for (const char* name : {"shut/new.png", "shut/new.ppm", "shut/new.bmp"})
        expect_refusal({"convert", png, path(name), "-q"}, "cannot write " + path(name));
    const std::string out = path("shut/new.png");
    expect_refusal({"view", png, "-o", out}, "cannot write " + out);
    expect_refusal({"st2084", "--png", out}, "cannot write " + out);
    expect_refusal({"capture", path("in.pcap"), out, "-s", "96x4"}, "cannot write " + out);
    expect_refusal({"demo", "-o", path("shut")}, "cannot write " + path("shut/card_1920x1080.2vuy"));
    expect_refusal({"demo", "-o", path("shut/new")}, "cannot make the folder " + path("shut/new"));
}

}  // namespace
}  // namespace tintvert::test
