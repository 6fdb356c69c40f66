// Addresses as numbers, for the reference implementations of the field routines.
#pragma once

#include <zkutil.h>

#include <cstdint>

namespace tintvert::reference {

using Address = uint64_t;

inline Address address_of(const uint8_t* pointer) { return reinterpret_cast<Address>(pointer); }
inline uint8_t* pointer_to(Address address) { return reinterpret_cast<uint8_t*>(address); }
inline uint8_t get(Address address) { return *pointer_to(address); }
inline void put(Address address, uint64_t byte) { *pointer_to(address) = static_cast<uint8_t>(byte); }

inline uint32_t get_word(Address address)
{
    return get(address) | uint32_t{get(address + 1)} << 8 | uint32_t{get(address + 2)} << 16 |
           uint32_t{get(address + 3)} << 24;
}

inline void put_word(Address address, uint32_t word)
{
    for (unsigned int i = 0; i < 4; ++i) put(address + i, word >> 8 * i & 0xFF);
}

inline void copy(Address to, Address from, uint32_t bytes) { CopyMemoryFast(pointer_to(to), pointer_to(from), bytes); }

// The exchange of two lines as the three routines with a handler do it. `exchange` is called for each round.
template <class Exchange>
void exchange_guarded(uint32_t scratch_bytes, uint32_t rounds, const char* text, Exchange exchange)
{
    const Address scratch = address_of(static_cast<uint8_t*>(ZKAlloc(scratch_bytes)));
    for (uint32_t round = 0; round < rounds; ++round) {
        try {
            exchange(round, scratch);
        } catch (...) {
            ErrFmtOut(0xC0000000, 0, 0, "ERROR(Tintvert): %s\n\r", text);
            break;
        }
    }
    ZKFree(pointer_to(scratch));
}

}  // namespace tintvert::reference
