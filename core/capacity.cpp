#include "capacity.h"

#include <algorithm>
#include <vector>

#include "failure.h"
#include "layouts.h"
#include "names.h"

namespace tintvert::core {
namespace {

using enum Chroma;

constexpr Capacity table[] = {
    {"2vuy", "2vuy", 8, c422, false},           {"2yuv", "2vuy", 8, c422, false},
    {"yuv2", "yuv2", 8, c422, false},           {"yuvu", "yuv2", 8, c422, false},
    {"yuvs", "yuvs", 8, c422, false},           {"YUY2", "YUY2", 8, c422, false},
    {"yuv444", "yuv444", 8, c444, false},       {"yuvijg", "yuvijg", 8, c444, false},
    {"planar422", "planar422", 8, c422, false}, {"field_planes", "field_planes", 8, c422, false},
    {"i420", "i420", 8, c420, false},           {"yv12", "yv12", 8, c420, false},
    {"planar420", "i420", 8, c420, false},      {"alphay", "alphay", 8, none, false},
    {"alpha", "alpha", 8, none, false},         {"v210", "v210", 10, c422, false},
    {"pgroups", "pgroups", 10, c422, false},    {"rgb32", "rgb32", 8, c444, true},
    {"rgba32", "rgb32", 8, c444, true},         {"rgba", "rgb32", 8, c444, true},
    {"BGRA", "rgb32", 8, c444, false},          {"ARGB", "abgr32", 8, c444, false},
    {"bgra32", "bgra32", 8, c444, true},        {"bgr32", "bgra32", 8, c444, true},
    {"abgr32", "abgr32", 8, c444, true},        {"macargb32", "abgr32", 8, c444, true},
    {"argb32", "argb32", 8, c444, true},        {"rgb24", "rgb24", 8, c444, false},
    {"rgba24", "rgb24", 8, c444, false},        {"bgr24", "bgr24", 8, c444, false},
    {"macbgr24", "bgr24", 8, c444, false},      {"rgb16", "rgb16", 5, c444, false},
    {"rgb48", "rgb48", 16, c444, false},        {"bgr48", "bgr48", 16, c444, false},
    {"rgb48_12", "rgb48_12", 12, c444, false},  {"rgba64", "rgba64", 16, c444, true},
    {"bgra64", "bgra64", 16, c444, true},       {"argb64", "argb64", 16, c444, true},
    {"abgr64", "abgr64", 16, c444, true},       {"argb64be", "argb64be", 16, c444, true},
    {"rgb10", "rgb10", 10, c444, false},        {"rgb12", "rgb12", 12, c444, false},
    {"rle8", "rle8", 8, c444, false},
};

}  // namespace

std::span<const Capacity> capacities() { return table; }

const Capacity& capacity_of(std::string_view layout)
{
    const auto found = std::ranges::find(table, layout, &Capacity::layout);
    if (found != std::end(table)) return *found;
    std::vector<std::string_view> names;
    for (const Capacity& each : table) names.push_back(each.layout);
    throw Failure(Exit::usage, "there is no layout '{}'{}", layout, suggestion(layout, names));
}

}  // namespace tintvert::core
