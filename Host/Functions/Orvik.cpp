#include "Codes.h"
#include "Names.h"
#include "Tables.h"

#include <SDK4/SDK4.h>

namespace Host {

using namespace SDK4::Control;
using enum Restore;

// clang-format off

void AddOrvikExposure(FunctionTable& table) {
    table.Row<&IExposure::GetExposureMode, &IExposure::SetExposureMode>          (Name::exposureMode)  .OneOf(Named::exposureModes).Restored(Setting);
    table.Row<&IExposure::GetAET, &IExposure::SetAET>                            (Name::aet)           .OneOf(0, 2).Named(Named::off).Restored(Mode);
    table.Row<&IExposure::GetExposure, &IExposure::SetExposure>                  (Name::exposure)      .MovedBy(Name::aet).Rounds().Restored(Setting);
    table.Row<&IGain::GetAGC, &IGain::SetAGC>                                    (Name::agc)           .OneOf(0, 2).Named(Named::off).Restored(Mode);
    table.Row<&IGain::GetGain, &IGain::SetGain>                                  (Name::gain)          .Range(0, 511).MovedBy(Name::agc).Restored(Setting);
}

// clang-format on

} // namespace Host
