#include "support/library_memory.h"

#include <dlfcn.h>
#include <link.h>

#include <cstddef>
#include <stdexcept>

namespace tintvert::test {
namespace {

struct Search {
    uintptr_t of_library;
    const std::vector<uint8_t>& bytes;
    std::vector<uint8_t*> places = {};
};

// The address sanitizer guards the gaps between the library's variables, which the search runs over.
__attribute__((no_sanitize("address"))) bool stand_at(const std::vector<uint8_t>& bytes, const volatile uint8_t* place)
{
    const uint8_t* const wanted = bytes.data();
    const size_t count = bytes.size();
    for (size_t i = 0; i < count; ++i)
        if (place[i] != wanted[i]) return false;
    return true;
}

int search_object(dl_phdr_info* object, size_t, void* data)
{
    Search& search = *static_cast<Search*>(data);
    bool is_library = false;
    for (size_t i = 0; i < object->dlpi_phnum; ++i) {
        const ElfW(Phdr)& part = object->dlpi_phdr[i];
        if (part.p_type == PT_LOAD && search.of_library - (object->dlpi_addr + part.p_vaddr) < part.p_memsz)
            is_library = true;
    }
    if (!is_library) return 0;
    for (size_t i = 0; i < object->dlpi_phnum; ++i) {
        const ElfW(Phdr)& part = object->dlpi_phdr[i];
        if (part.p_type != PT_LOAD || (part.p_flags & PF_W) == 0) continue;
        auto* const begin = reinterpret_cast<uint8_t*>(object->dlpi_addr + part.p_vaddr);
        for (size_t at = 0; at + search.bytes.size() <= part.p_memsz; ++at)
            if (stand_at(search.bytes, begin + at)) search.places.push_back(begin + at);
    }
    return 1;
}

}  // namespace

std::vector<uint8_t*> places_in_library(const std::vector<uint8_t>& bytes)
{
    void* const routine = dlsym(RTLD_DEFAULT, "tnvtt_open");
    if (routine == nullptr) throw std::runtime_error("libtintvert is not loaded");
    Search search{reinterpret_cast<uintptr_t>(routine), bytes};
    if (dl_iterate_phdr(search_object, &search) != 1) throw std::runtime_error("libtintvert is not found");
    return search.places;
}

__attribute__((no_sanitize("address"))) void overwrite_in_library(uint8_t* place, const std::vector<uint8_t>& bytes)
{
    volatile uint8_t* const to = place;
    const uint8_t* const from = bytes.data();
    const size_t count = bytes.size();
    for (size_t i = 0; i < count; ++i) to[i] = from[i];
}

}  // namespace tintvert::test
