// Feeds arbitrary text to our VISA layer where a caller's names arrive:
// resource names (parsed, printed back and parsed again), find patterns, and
// the calls that take a session number that may never have been opened.
// None may crash, hang or read out of bounds.
#include "visa/resourcename.h"
#include "visa/findpattern.h"
#include "visa/objecttable.h"
#include "visa/visaextras.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

using namespace selvane::visa;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    // The canonical form may outgrow the length limit (a default "::inst0::INSTR" added).
    if (const auto name = parseResourceName(text); name && name->canonical().size() <= ResourceNameLimit) {
        const auto again = parseResourceName(name->canonical());
        if (!again || again->canonical() != name->canonical()) __builtin_trap(); // printing must round-trip
    }
    if (const auto pattern = FindPattern::compile(text)) pattern->matches(text);

    static const ViSession manager = builtinObjects().addManager();
    ViUInt16 type = 0, board = 0;
    char rsrcClass[VI_FIND_BUFLEN], expanded[VI_FIND_BUFLEN], alias[VI_FIND_BUFLEN];
    parseResourceEx(manager, text.c_str(), &type, &board, rsrcClass, expanded, alias);

    ViSession vi = 0;
    std::memcpy(&vi, data, std::min(size, sizeof vi));
    if (vi == manager) return 0;
    ViUInt16 statusByte = 0;
    readStatusByte(vi, size % 2 ? &statusByte : nullptr);
    lock(vi, ViAccessMode(size % 4), 0, text.c_str(), expanded);
    unlock(vi);
    flush(vi, ViUInt16(size));
    enableEvent(vi, ViEventType(vi), ViUInt16(size), 0);
    statusDescription(vi, ViStatus(vi), expanded);
    return 0;
}
