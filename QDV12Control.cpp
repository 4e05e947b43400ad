#include "Log.h"

namespace SDK4 {

const log4cxx::LoggerPtr logger = log4cxx::Logger::getLogger("SDK4QDV12Control");

} // namespace SDK4
