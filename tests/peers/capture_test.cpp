// tintvert capture against GStreamer: its packets through our walker, its pictures through its own v210.
#ifdef TINTVERT_TOOL
#include <sys/wait.h>

#include "tool/run.h"

namespace tintvert::test {
namespace {

class CapturePeer : public ToolTest {
protected:
    // In a shell, in the test's folder.
    int shell(const std::string& commands) const
    {
        return std::system(("cd " + path("") + " && { " + commands + "; } > log 2>&1").c_str());
    }
    bool is_installed(const std::string& program) const { return shell("command -v " + program) == 0; }
    bool sends_packets() const { return shell("gst-inspect-1.0 rtpvrawpay") == 0; }

    // Two frames as UYVP into src.uyvp, and as RTP packets into what `sink` names.
    std::string send(const std::string& source, unsigned width, unsigned height, const std::string& payloader,
                     const std::string& sink) const
    {
        return "timeout 60 gst-launch-1.0 -q videotestsrc num-buffers=2 " + source +
               ",format=UYVP,width=" + std::to_string(width) + ",height=" + std::to_string(height) +
               ",framerate=25/1 ! tee name=t t. ! queue ! filesink location=src.uyvp t. ! queue ! rtpvrawpay "
               "mtu=1400 " +
               payloader + " ! " + sink;
    }

    // What GStreamer makes of src.uyvp.
    std::string v210_of_source(unsigned width, unsigned height) const
    {
        EXPECT_EQ(shell("timeout 60 gst-launch-1.0 -q filesrc location=src.uyvp ! rawvideoparse format=uyvp width=" +
                        std::to_string(width) + " height=" + std::to_string(height) +
                        " ! videoconvert dither=none ! video/x-raw,format=v210 ! filesink location=theirs.v210"),
                  0)
            << load("log");
        return load("theirs.v210");
    }

    // The report as JSON text.
    std::string expect_same(const std::string& capture, unsigned width, unsigned height,
                            const std::vector<std::string>& more = {}) const
    {
        std::vector<std::string> arguments = {"capture",         path(capture),
                                              path("ours.v210"), "--json",
                                              "--size",          std::to_string(width) + "x" + std::to_string(height)};
        arguments.insert(arguments.end(), more.begin(), more.end());
        const Result result = run(arguments);
        EXPECT_EQ(result.code, 0) << result.out << result.err;
        const std::string theirs = v210_of_source(width, height);
        EXPECT_EQ(theirs.size(), (width + 47) / 48 * 128 * height * 2);
        EXPECT_TRUE(load("ours.v210") == theirs);
        return result.out;
    }
};

bool reports(const std::string& report, const std::string& key, unsigned value)
{
    return report.find("\"" + key + "\": " + std::to_string(value) + ",") != std::string::npos;
}

// From number 65530 on, so that the numbers wrap; GStreamer leaves their upper half at 0.
TEST_F(CapturePeer, framed_1080_lines)
{
    if (!sends_packets()) GTEST_SKIP() << "skipped: GStreamer with rtpvrawpay is not installed";
    ASSERT_EQ(shell(send("pattern=smpte ! video/x-raw", 1920, 1080, "pt=96 ssrc=305419896 seqnum-offset=65530",
                         "rtpstreampay ! filesink location=in.rtps")),
              0)
        << load("log");
    const std::string report = expect_same("in.rtps", 1920, 1080);
    for (const auto& [key, value] : {std::pair{"phase_0", 4676u}, {"phase_2", 2498u}, {"phase_4", 2494u}})
        EXPECT_TRUE(reports(report, key, value)) << report;
}

// Widths of 4 and 2 pixels beyond a whole group, and with less than a packet to a frame.
TEST_F(CapturePeer, framed_odd_widths)
{
    if (!sends_packets()) GTEST_SKIP() << "skipped: GStreamer with rtpvrawpay is not installed";
    for (const auto& [width, height] : {std::pair{640u, 360u}, {100u, 50u}, {650u, 20u}, {16u, 3u}}) {
        ASSERT_EQ(shell(send("pattern=ball ! video/x-raw", width, height, "", "rtpstreampay ! filesink location=in")),
                  0)
            << load("log");
        expect_same("in", width, height);
    }
}

// GStreamer sends field by field and numbers lines through the frame.
TEST_F(CapturePeer, framed_interlaced)
{
    if (!sends_packets()) GTEST_SKIP() << "skipped: GStreamer with rtpvrawpay is not installed";
    ASSERT_EQ(shell(send("pattern=ball ! video/x-raw,interlace-mode=interleaved", 640, 360, "",
                         "rtpstreampay ! filesink location=in")),
              0)
        << load("log");
    expect_same("in", 640, 360, {"--interlaced=frame"});
}

// Over the loopback and into a pcap. tcpdump is ended by its own id.
TEST_F(CapturePeer, pcap_from_the_loopback)
{
    if (!sends_packets()) GTEST_SKIP() << "skipped: GStreamer with rtpvrawpay is not installed";
    if (!is_installed("tcpdump")) GTEST_SKIP() << "skipped: tcpdump is not installed";
    const std::string port = std::to_string(20000 + getpid() % 20000);
    const int code =
        shell("timeout 100 tcpdump -i lo -Z root -B 65536 -s 0 -U -w in.pcap udp port " + port +
              " 2> dump & dump=$!; for i in $(seq 100); do grep -q listening dump && break; "
              "kill -0 $dump || exit 77; sleep 0.1; done; " +
              send("pattern=ball ! video/x-raw", 640, 360, "", "udpsink host=127.0.0.1 sync=true port=" + port) +
              "; sleep 1; kill $dump; wait $dump; true");
    if (WIFEXITED(code) && WEXITSTATUS(code) == 77) GTEST_SKIP() << "skipped: tcpdump may not listen: " << load("dump");
    const std::string dump = load("dump");
    if (dump.find("\n0 packets dropped by kernel") == std::string::npos)
        GTEST_SKIP() << "skipped: tcpdump did not get all packets: " << dump;
    expect_same("in.pcap", 640, 360);
    expect_same("in.pcap", 640, 360, {"--port", port});
}

}  // namespace
}  // namespace tintvert::test
#endif
