#include "Log.h"

#include <ostream>

namespace SDK4 {

PlainStream::PlainStream(std::ostream& borrowed) : stream(borrowed), before(nullptr) {
    before.copyfmt(stream);
    stream.flags(std::ios::dec | std::ios::skipws);
    stream.width(0);
    stream.fill(' ');
    stream.imbue(std::locale::classic()); // others group digits
}

PlainStream::~PlainStream() { stream.copyfmt(before); }

} // namespace SDK4
