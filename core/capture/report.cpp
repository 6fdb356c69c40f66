#include "capture/report.h"

namespace tintvert::core::capture {

bool Report::is_complete() const
{
    const OrderCounts& order = packets.order;
    return !ends_early && packets.malformed + packets.cut + order.missing + order.late + order.stray == 0 &&
           segments.all_refused() == 0 && frames.incomplete == 0;
}

}  // namespace tintvert::core::capture
