// What a raw file may contain, by its name, its length and how alike its lines are.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "io/input_file.h"
#include "samples.h"

namespace tintvert::core {

struct Guess {
    const catalog::SampleForm* form;
    std::vector<std::string_view> same;  // other layouts of the same bytes
    int64_t width, height, frames;
    bool name_tells_layout, name_tells_size, is_usual_size;
    double alike;   // neighbouring samples beside samples from anywhere: 0 for noise, to 1 for smooth pictures
    double unused;  // how much of what is no sample is not 0
    double score() const;
};

// The best first.
std::vector<Guess> guesses(InputFile& file);

}  // namespace tintvert::core
