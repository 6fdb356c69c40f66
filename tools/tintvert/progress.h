// A line on stderr that grows with the frames done; silent when stderr is no terminal.
#pragma once

#include <cstdint>

namespace tintvert::tool {

class Progress {
public:
    explicit Progress(int64_t frames, bool quiet = false);  // -1 if that is not known before their end
    ~Progress();
    void done(int64_t frames);

private:
    int64_t frames_;
    bool shown_;
    double begun_, last_shown_ = 0;
};

}  // namespace tintvert::tool
