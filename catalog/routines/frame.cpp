// Start-up and scratch memory.
#include "record.h"

namespace tintvert::catalog {

constinit const Routine records::tnvtt_open = record<RoutineId::tnvtt_open, shapes::open>({
    .chapter = "frame", .companions = {"CPUFeatureFlags"},
    .summary = "Notes the processor's feature bit 0x20; no conversion needs it."});

constinit const Routine records::malloc_own_cache_lines =
    record<RoutineId::malloc_own_cache_lines, shapes::scratch_new>({
    .chapter = "frame", .extents = extents::scratch_new, .refuses = refusals::negative_size, .companions = {"ZKAlloc"},
    .summary = "Obtains a block with a 32-byte aligned pointer into it."});

constinit const Routine records::free_own_cache_lines = record<RoutineId::free_own_cache_lines, shapes::scratch_free>({
    .chapter = "frame", .extents = extents::scratch_free, .companions = {"ZKFree"},
    .summary = "Releases a block from malloc_own_cache_lines."});

}  // namespace tintvert::catalog
