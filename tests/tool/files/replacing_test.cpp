// Files that are replaced, and what a killed run leaves.
#include <fcntl.h>
#include <sched.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <optional>
#include <utility>

#include "tool/noise.h"
#include "tool/run.h"

namespace tintvert::test {
namespace {

namespace fs = std::filesystem;

class Replacing : public ToolTest {
protected:
    void SetUp() override
    {
        save("in.2vuy", noise(1, 64));
        ASSERT_EQ(convert("expected"), 0);
    }
    int convert(const std::string& out) const
    {
        return run({"convert", "--from", "2vuy", "--to", "v210", path("in.2vuy"), path(out), "-s", "8x4", "-q"}).code;
    }
    bool is_converted(const std::string& out) const { return load(out) == load("expected"); }
    struct stat about(const std::string& name) const
    {
        struct stat result = {};
        EXPECT_EQ(stat(path(name).c_str(), &result), 0);
        return result;
    }
};

TEST_F(Replacing, the_mode_stays)
{
    for (const mode_t mode : {0600, 0640, 0666, 0755}) {
        save("out", "old");
        chmod(path("out").c_str(), mode);
        EXPECT_EQ(convert("out"), 0);
        EXPECT_EQ(about("out").st_mode & 07777, mode);
        EXPECT_TRUE(is_converted("out"));
    }
}

TEST_F(Replacing, the_owner_stays)
{
    if (geteuid() != 0) GTEST_SKIP() << "skipped: only root can give files away";
    save("out", "old");
    ASSERT_EQ(chown(path("out").c_str(), 4321, 1234), 0);
    EXPECT_EQ(convert("out"), 0);
    EXPECT_EQ(about("out").st_uid, 4321u);
    EXPECT_EQ(about("out").st_gid, 1234u);
    EXPECT_TRUE(is_converted("out"));
}

TEST_F(Replacing, a_read_only_file_is_refused)
{
    save("out", "old");
    chmod(path("out").c_str(), 0444);
    const Result result =
        run({"convert", "--from", "2vuy", "--to", "v210", path("in.2vuy"), path("out"), "-s", "8x4", "-q"});
    EXPECT_EQ(result.code, 3);
    EXPECT_EQ(result.err, "tintvert: cannot write " + path("out") + ": Permission denied\n");
    EXPECT_EQ(load("out"), "old");
}

TEST_F(Replacing, a_symbolic_link_stays)
{
    fs::create_directory(path("real"));
    save("real/out", "old");
    fs::create_symlink("real/out", path("link"));
    fs::create_symlink("link", path("second"));
    EXPECT_EQ(convert("second"), 0);
    EXPECT_TRUE(fs::is_symlink(path("second")));
    EXPECT_TRUE(fs::is_symlink(path("link")));
    EXPECT_FALSE(fs::is_symlink(path("real/out")));
    EXPECT_TRUE(is_converted("real/out"));

    fs::create_symlink("real/new", path("dangling"));
    EXPECT_EQ(convert("dangling"), 0);
    EXPECT_TRUE(fs::is_symlink(path("dangling")));
    EXPECT_TRUE(is_converted("real/new"));

    fs::create_symlink("circle", path("circle"));
    EXPECT_EQ(convert("circle"), 3);
}

// A conversion from a pipe that stays open: it has its temporary file, and waits.
class Waiting {
public:
    explicit Waiting(const std::string& out)
    {
        EXPECT_EQ(pipe(ends_), 0);
        process_.emplace(
            std::vector<std::string>{"convert", "--from", "2vuy", "--to", "v210", "-", out, "-s", "8x4", "-q"}, [&] {
                dup2(ends_[0], STDIN_FILENO);
                close(ends_[1]);
            });
        EXPECT_EQ(write(ends_[1], noise(1, 64).data(), 64), 64);
    }
    ~Waiting()
    {
        close(ends_[0]);
        if (ends_[1] >= 0) close(ends_[1]);
    }
    Process& process() { return *process_; }
    void end_input() { close(std::exchange(ends_[1], -1)); }

private:
    int ends_[2];
    std::optional<Process> process_;
};

std::set<std::string> temporary(std::set<std::string> names)
{
    std::erase_if(names, [](const std::string& name) { return !name.ends_with(".part"); });
    return names;
}

TEST_F(Replacing, a_killed_run_is_cleaned_up_by_the_next)
{
    Waiting run(path("out"));
    while (temporary(files_in("")).empty() && run.process().is_running()) sched_yield();
    kill(run.process().pid(), SIGKILL);
    EXPECT_EQ(run.process().wait().code, -SIGKILL);
    EXPECT_EQ(temporary(files_in("")).size(), 1u);
    EXPECT_EQ(convert("other"), 0);
    EXPECT_EQ(temporary(files_in("")), std::set<std::string>());
}

// Only a lock shows that the process of a temporary file is alive: its number says nothing to another machine.
TEST_F(Replacing, a_run_that_is_alive_keeps_its_file)
{
    Waiting run(path("out"));
    const auto is_locked = [&](const std::string& name) {
        const int descriptor = open(path(name).c_str(), O_RDONLY);
        const bool is_free = descriptor >= 0 && flock(descriptor, LOCK_EX | LOCK_NB) == 0;
        if (descriptor >= 0) close(descriptor);
        return !is_free;
    };
    std::set<std::string> names;
    while ((names = temporary(files_in(""))).empty() && run.process().is_running()) sched_yield();
    ASSERT_EQ(names.size(), 1u);
    while (!is_locked(*names.begin()) && run.process().is_running()) sched_yield();
    EXPECT_EQ(convert("other"), 0);
    EXPECT_EQ(temporary(files_in("")), names);
    run.end_input();
    EXPECT_EQ(run.process().wait().code, 0);
    EXPECT_TRUE(is_converted("out"));
}

TEST_F(Replacing, exit_codes_of_signals)
{
    for (const auto& [signal, code] : {std::pair{SIGHUP, 129}, {SIGINT, 130}, {SIGTERM, 143}}) {
        Waiting run(path("out"));
        while (temporary(files_in("")).empty() && run.process().is_running()) sched_yield();
        kill(run.process().pid(), signal);
        EXPECT_EQ(run.process().wait().code, code);
        EXPECT_EQ(temporary(files_in("")), std::set<std::string>());
        EXPECT_FALSE(fs::exists(path("out")));
    }
}

class Planes : public Replacing {
protected:
    Result split(const std::string& last, const std::function<void()>& in_child = {}) const
    {
        return run({"convert", "tntvt_2vuy_planar", path("in.2vuy"), "-s", "8x4", "--planes",
                    path("y") + ',' + path("cb") + ',' + last},
                   in_child);
    }
};

TEST_F(Planes, all_are_written_or_none)
{
    save("y", "old y");
    save("cb", "old cb");
    fs::create_directory(path("folder"));
    for (const std::string& last : {path("folder"), path("none/cr"), std::string("/dev/full")}) {
        const Result result = split(last);
        EXPECT_EQ(result.code, 3) << last;
        EXPECT_NE(result.err.find("cannot write " + last), std::string::npos) << result.err;
        EXPECT_EQ(load("y"), "old y");
        EXPECT_EQ(load("cb"), "old cb");
        EXPECT_EQ(temporary(files_in("")), std::set<std::string>());
    }
    EXPECT_EQ(split(path("cr")).code, 0);
    EXPECT_EQ(load("y").size(), 32u);
    EXPECT_EQ(load("cb").size(), 16u);
    EXPECT_EQ(load("cr").size(), 16u);
}

TEST_F(Planes, a_signal_leaves_none)
{
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    Process process(
        {"convert", "tntvt_2vuy_planar", "-", "-s", "8x4", "--planes", path("y") + ',' + path("cb") + ',' + path("cr")},
        [&] { dup2(ends[0], STDIN_FILENO); });
    EXPECT_EQ(write(ends[1], noise(1, 64).data(), 64), 64);
    while (temporary(files_in("")).size() < 3 && process.is_running()) sched_yield();
    kill(process.pid(), SIGTERM);
    EXPECT_EQ(process.wait().code, 143);
    EXPECT_EQ(files_in(""), (std::set<std::string>{"in.2vuy", "expected"}));
    close(ends[0]);
    close(ends[1]);
}

}  // namespace
}  // namespace tintvert::test
