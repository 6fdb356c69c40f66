#include "capture/packets/source.h"

#include "capture/packets/framed.h"
#include "capture/packets/pcap.h"
#include "failure.h"

namespace tintvert::core::capture {

std::unique_ptr<Source> open_source(Input& input)
{
    const Bytes head = input.head();
    if (is_pcap(head)) return std::make_unique<PcapSource>(input);
    if (is_framed(head)) return std::make_unique<FramedSource>(input);
    if (head.size() == 4 && be32(head, 0) == 0x0A0D0D0A)
        throw Failure(Exit::no_file, "{} is pcapng, and only classic pcap is read (editcap -F pcap converts it)",
                      input.name());
    throw Failure(Exit::no_file, "{} is neither a pcap nor RTP packets with RFC 4571 framing", input.name());
}

}  // namespace tintvert::core::capture
