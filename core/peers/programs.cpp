#include <fmt/format.h>

#include <sstream>

#include "peers/peer.h"
#include "peers/process.h"

namespace tintvert::core {
namespace {

// The catalogue's commands read the file `in` and write the file `out`; here both are pipes.
void add_word(std::vector<std::string>& words, const std::string& word, const PeerQuestion& question)
{
    const bool is_ffmpeg = question.peer == "ffmpeg";
    if (word == "WxH")
        words.push_back(fmt::format("{}x{}", question.width, question.height));
    else if (word == "width=W")
        words.push_back(fmt::format("width={}", question.width));
    else if (word == "height=H")
        words.push_back(fmt::format("height={}", question.height));
    else if (is_ffmpeg && word == "in")
        words.push_back("pipe:0");
    else if (is_ffmpeg && word == "out")
        words.push_back("pipe:1");
    else if (word == "filesrc" || word == "filesink")
        words.push_back(word == "filesrc" ? "fdsrc" : "fdsink");
    else if (word == "location=in" || word == "location=out")
        words.push_back(word == "location=in" ? "fd=0" : "fd=1");
    else
        words.push_back(word);
}

std::vector<std::string> command_of(const PeerQuestion& question)
{
    std::vector<std::string> words;
    std::istringstream text{std::string(question.asked)};
    for (std::string word; text >> word;) {
        add_word(words, word, question);
        if (words.size() > 1) continue;
        if (question.peer == "ffmpeg")
            words.insert(words.end(), {"-v", "error"});
        else
            words.push_back("-q");
    }
    return words;
}

}  // namespace

PeerAnswer answer_of_program(const PeerQuestion& question) { return answer_of(command_of(question), question.frame); }

}  // namespace tintvert::core
