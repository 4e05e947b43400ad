#include "OrvikControlImpl/KMemory.h"

namespace SDK4::Control {

using namespace Name;
using enum Caching;

KMemory::KMemory(CFeatureList* features, CRegisterList* registers, IControlPort* port, bool noCache,
                 std::string /*model*/)
    : Capability(features, registers, port, noCache) {
    SDK4_LOG(Debug, "ctor KMemory");
    // clang-format off
    Register<int>(Name::VerticalFlip,     0x16020000, ReadBack, {LoadSettings});
    Register<int>(Name::HorizontalFlip,   0x16030000, ReadBack, {LoadSettings});
    Register<int>(Name::LastImageHold,    0x16040000, ReadBack, {LoadSettings});
    Register<int>(Name::StoreImage,       0x16050000, ReadBack, {LoadSettings});
    Register<int>(Name::ImageSubtraction, 0x16060000, ReadBack, {LoadSettings});
    Register<int>(Name::RecursiveFilter,  0x16070000, ReadBack, {LoadSettings});

    Enum(Name::VerticalFlip,     {0, 1})         .ImplementedIf(IsMemoryCamera);
    Enum(Name::HorizontalFlip,   {0, 1})         .ImplementedIf(IsMemoryCamera);
    Enum(Name::LastImageHold,    {0, 1})         .ImplementedIf(IsMemoryCamera);
    Enum(Name::StoreImage,       {0, 1})         .ImplementedIf(IsMemoryCamera);
    Enum(Name::ImageSubtraction, {0, 1})         .ImplementedIf(IsMemoryCamera);
    Enum(Name::RecursiveFilter,  {0, 1, 2, 3, 4}).ImplementedIf(IsMemoryCamera);
    // clang-format on
}

// clang-format off
SDK4_ENUM_SWITCH KMemory::GetVerticalFlip()             { SDK4_LOG_CALL(); return GetEnum<SDK4_ENUM_SWITCH>(Name::VerticalFlip); }
void KMemory::SetVerticalFlip(int flip)                 { SDK4_LOG_CALL(); Set<int>(Name::VerticalFlip, flip); }
SDK4_ENUM_SWITCH KMemory::GetHorizontalFlip()           { SDK4_LOG_CALL(); return GetEnum<SDK4_ENUM_SWITCH>(Name::HorizontalFlip); }
void KMemory::SetHorizontalFlip(int flip)               { SDK4_LOG_CALL(); Set<int>(Name::HorizontalFlip, flip); }
SDK4_ENUM_SWITCH KMemory::GetLastImageHold()            { SDK4_LOG_CALL(); return GetEnum<SDK4_ENUM_SWITCH>(Name::LastImageHold); }
void KMemory::SetLastImageHold(int hold)                { SDK4_LOG_CALL(); Set<int>(Name::LastImageHold, hold); }
SDK4_ENUM_SWITCH KMemory::GetImageSubtraction()         { SDK4_LOG_CALL(); return GetEnum<SDK4_ENUM_SWITCH>(Name::ImageSubtraction); }
void KMemory::SetImageSubtraction(int subtract)         { SDK4_LOG_CALL(); Set<int>(Name::ImageSubtraction, subtract); }
SDK4_ENUM_RECURSIVEFILTER KMemory::GetRecursiveFilter() { SDK4_LOG_CALL(); return GetEnum<SDK4_ENUM_RECURSIVEFILTER>(Name::RecursiveFilter); }
void KMemory::SetRecursiveFilter(int strength)          { SDK4_LOG_CALL(); Set<int>(Name::RecursiveFilter, strength); }
void KMemory::StoreImage(int store)                     { SDK4_LOG_CALL(); Set<int>(Name::StoreImage, store); }
SDK4_ENUM_SWITCH KMemory::GetAutoMotionDetection()      { SDK4_LOG_CALL(); SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED); }
void KMemory::SetAutoMotionDetection(int)               { SDK4_LOG_CALL(); SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED); }
// clang-format on

} // namespace SDK4::Control
