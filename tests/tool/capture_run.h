// Runs `tintvert capture` on bytes and reads its report.
#pragma once

#include <nlohmann/json.hpp>

#include "support/packet_maker.h"
#include "tool/run.h"

namespace tintvert::test {

using Json = nlohmann::json;

struct Captured {
    Result result;
    Json report;         // null if there is none
    std::string frames;  // empty if there is no file
};

class CaptureTest : public ToolTest {
protected:
    Captured capture(const std::string& bytes, const Geometry& size, std::vector<std::string> more = {}) const
    {
        save("in", bytes);
        std::filesystem::remove(path("out.v210"));
        std::vector<std::string> arguments = {
            "capture", path("in"), path("out.v210"),
            "--json",  "--size",   std::to_string(size.width) + "x" + std::to_string(size.height)};
        arguments.insert(arguments.end(), more.begin(), more.end());
        const Result result = run(arguments);
        return {result, result.out.empty() ? Json() : Json::parse(result.out), load("out.v210")};
    }

    bool left_nothing_unfinished() const
    {
        for (const std::string& name : files_in(""))
            if (name.ends_with(".part")) return false;
        return true;
    }
};

}  // namespace tintvert::test
