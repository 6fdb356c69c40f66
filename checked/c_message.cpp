#include "c_face.h"

namespace tintvert::checked {
namespace {

constexpr bool same(Code code, tntvt_checked_code in_c) { return static_cast<int>(code) == static_cast<int>(in_c); }
static_assert(same(Code::ok, TNTVT_CHECKED_OK) && same(Code::null, TNTVT_CHECKED_NULL));
static_assert(same(Code::too_small, TNTVT_CHECKED_TOO_SMALL) && same(Code::overlap, TNTVT_CHECKED_OVERLAP));
static_assert(same(Code::refused, TNTVT_CHECKED_REFUSED) && same(Code::failed, TNTVT_CHECKED_FAILED));

constexpr bool same(Refusal refusal, tntvt_checked_refusal in_c)
{
    return static_cast<int>(refusal) == static_cast<int>(in_c);
}
static_assert(same(Refusal::none, TNTVT_CHECKED_NOT_REFUSED) && same(Refusal::too_large, TNTVT_CHECKED_TOO_LARGE));
static_assert(same(Refusal::divides_by_zero, TNTVT_CHECKED_DIVIDES_BY_ZERO));
static_assert(same(Refusal::never_returns, TNTVT_CHECKED_NEVER_RETURNS));
static_assert(same(Refusal::walks_2_32_lines, TNTVT_CHECKED_WALKS_2_32_LINES));
static_assert(same(Refusal::wraps, TNTVT_CHECKED_WRAPS));
static_assert(same(Refusal::reads_as_unsigned, TNTVT_CHECKED_READS_AS_UNSIGNED));
static_assert(same(Refusal::overruns_scratch, TNTVT_CHECKED_OVERRUNS_SCRATCH));

}  // namespace
}  // namespace tintvert::checked

size_t tntvt_checked_message(const tntvt_checked_result* result, char* text, size_t size)
{
    tintvert::checked::Status error;
    error.code = static_cast<tintvert::checked::Code>(result->code);
    error.routine = result->routine;
    error.buffer = result->buffer;
    error.other = result->other;
    error.why = result->why;
    error.has = result->has;
    error.front = result->front;
    error.needs = result->needs;
    error.where = {result->where.from, result->where.to};
    return error.message(text, size);
}
