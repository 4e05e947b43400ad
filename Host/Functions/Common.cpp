#include "Common/Text.h"
#include "Host/Functions/Codes.h"
#include "Host/Functions/Names.h"
#include "Host/Functions/PersistentIP.h"
#include "Host/Functions/Rounding.h"
#include "Host/Functions/Tables.h"

#include <SDK4/SDK4.h>

namespace Host {

using namespace SDK4::Control;

namespace {

SDK4::IVideoFrame& Frame(IDSMediaType& stream) {
    auto* const frame = dynamic_cast<SDK4::IVideoFrame*>(stream.GetMediaType());
    if (frame == nullptr) {
        throw SDK4::X4Error(SDK4_ERR_INVALID_INTERFACE);
    }
    return *frame;
}
unsigned int PixelFormatOf(IDSMediaType& stream) { return Frame(stream).GetFormat(); }
unsigned int TimePerFrame(IDSMediaType& stream) { return Frame(stream).GetTimePerFrame(); }

constexpr unsigned int dhcpBit = 2;
SDK4_ENUM_SWITCH GetDHCP(IGigECamera& camera) {
    return (camera.GetCurrentIPConfig() & dhcpBit) != 0 ? SDK4_SWITCH_ON : SDK4_SWITCH_OFF;
}
void SetDHCP(IGigECamera& camera, SDK4_ENUM_SWITCH on) {
    on == SDK4_SWITCH_OFF ? camera.DisableDHCP() : camera.EnableDHCP();
}

constexpr std::size_t userNameLength = 15; ///< without the NUL
void SetUserName(IGigECamera& camera, const char* name) {
    camera.SetUserDefinedName(
        Common::CutAtCharacter(name, userNameLength).c_str()); // the library truncates at any byte
}

int BoardTemperature(IInternalTests& tests) { return tests.GetTemperature(0); } // the only sensor of both families

} // namespace

// clang-format off

void AddIdentity(FunctionTable& table) {
    using I = IGufi;
    table.Topic(Topics::identity);
    table.ReadOnly<&I::GetDeviceName>           ("devicename");
    table.ReadOnly<&I::GetSerialNumber>         (Name::serialNumber);
    table.ReadOnly<&I::GetFunctionModelID>      ("functionmodelid")      .Hexadecimal();
    table.ReadOnly<&I::GetFunctionModelVersion> ("functionmodelversion");
    table.ReadOnly<&I::GetRevision>             ("revision");
    table.ReadOnly<&I::GetSoftwareBuild>        ("softwarebuild");
    table.ReadOnly<&I::GetSoftwareVersion>      ("softwareversion");
    table.ReadOnly<&I::GetFirmwareVersion>      ("firmwareversion");
    table.ReadOnly<&I::GetHardwareVersion>      ("hardwareversion");
}

void AddNetwork(FunctionTable& table) {
    using I = IGigECamera;
    table.Topic(Topics::network);
    table.ReadOnly<&I::GetMacAddress>                     ("macaddress");
    table.ReadOnly<&I::GetCurrentIPAddress>               ("ipaddress");
    table.ReadOnly<&I::GetCurrentSubnetmask>              ("subnetmask");
    table.ReadOnly<&I::GetCurrentDefaultGateway>          ("gateway");
    table.ReadOnly<&I::GetCurrentIPConfig>                ("ipconfig")    .Hexadecimal();
    table.ReadOnly<&I::GetGigEVersion>                    ("gigeversion") .Hexadecimal();
    table.ReadOnly<&I::GetFirstUrl>                       ("firsturl");
    table.ReadOnly<&I::GetSecondUrl>                      ("secondurl");
    table.Network<&I::GetUserDefinedName, &SetUserName>   ("username");
    table.Address<&GetDHCP, &SetDHCP>                     ("dhcp")        .OnOff();
    table.Address<&GetPersistentIP, &SetPersistentIP>     ("persistentip").Form("off|ADDRESS,MASK,GATEWAY", &WhyInvalidPersistentIP).Caution(&CautionAboutPersistentIP).Distinct();
    table.Network<&I::GetPacketSize, &I::SetPacketSize>   ("packetsize")  .Unit("bytes").Range(1404, 65532).Rounds(Rounding::DownToFours);
    table.Network<&I::GetPacketDelay, &I::SetPacketDelay> ("packetdelay") .Unit("ticks");
}

void AddFrames(FunctionTable& table) {
    table.Topic(Topics::image);
    table.ReadOnly<&ISignalFormat::GetImageSize> ("imagesize")    .Unit("px");
    table.ReadOnly<&PixelFormatOf>               ("pixelformat")  .Hexadecimal();
    table.ReadOnly<&TimePerFrame>                ("timeperframe") .Unit("ns");
}

void AddProcessing(FunctionTable& table) {
    using I = ILookUpTable;
    using E = IDigitalEnhancement;
    table.Topic(Topics::processing);
    table.Setting<&E::GetSharpness, &E::SetSharpness>         ("sharpness")     .Range(0, 255);
    table.Setting<&I::GetLUTMode, &I::SetLUTMode>             ("lutmode")       .OneOf(0, 1);
    table.Setting<&I::GetNegativeImage, &I::SetNegativeImage> ("negativeimage") .OnOff();
}

void AddMemory(FunctionTable& table) {
    using I = IMemory;
    table.Topic(Topics::memory);
    table.Setting<&I::GetVerticalFlip, &I::SetVerticalFlip>               (Name::verticalFlip)    .OnOff();
    table.Setting<&I::GetHorizontalFlip, &I::SetHorizontalFlip>           ("horizontalflip")      .OnOff();
    table.Setting<&I::GetLastImageHold, &I::SetLastImageHold>             ("lastimagehold")       .OnOff();
    table.Setting<&I::GetImageSubtraction, &I::SetImageSubtraction>       ("imagesubtraction")    .OnOff();
    table.Setting<&I::GetRecursiveFilter, &I::SetRecursiveFilter>         (Name::recursiveFilter) .OneOf(0, 4).Named(Named::off);
    table.Setting<&I::GetAutoMotionDetection, &I::SetAutoMotionDetection> ("automotiondetection") .OnOff().Needs(Name::recursiveFilter, {1, 2, 3, 4});
    table.WriteOnly<&I::StoreImage> ("storeimage") .OnOff().PresentWith(Name::verticalFlip).PublishedAs("imagestore");
}

void AddSettingsSets(FunctionTable& table) {
    using I = IBasicSettings;
    table.Topic(Topics::settings);
    table.Row<&I::GetStartupSettings, &I::SetStartupSettings> ("startupsettings") .OneOf(0, 2);
    table.WriteOnly<&I::LoadSettings>                         ("loadsettings")    .OneOf(0, 2);
    table.WriteOnly<&I::SaveSettings>                         ("savesettings")    .OneOf(1, 2); // set 0 is the factory's
    table.ReadOnly<&I::GetOperationMode>                      ("operationmode");
    table.ReadOnly<&I::GetErrorRegisterStatus>                ("errorregister")   .Hexadecimal();
}

void AddTests(FunctionTable& table) {
    table.Topic(Topics::tests);
    table.ReadOnly<&BoardTemperature> ("temperature") .Unit("degC");
}

// clang-format on

} // namespace Host
