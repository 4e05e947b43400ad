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
    table.ReadOnly<&I::GetDeviceName>           ("devicename")                          .Means("Name of the device");
    table.ReadOnly<&I::GetSerialNumber>         (Name::serialNumber)                    .Means("Serial number");
    table.ReadOnly<&I::GetFunctionModelID>      ("functionmodelid")      .Hexadecimal() .Means("Capabilities: bit 16 colour, 17 image memory, 18 histogram");
    table.ReadOnly<&I::GetFunctionModelVersion> ("functionmodelversion")                .Means("Version of the function model");
    table.ReadOnly<&I::GetRevision>             ("revision")                            .Means("Revision of the camera");
    table.ReadOnly<&I::GetSoftwareBuild>        ("softwarebuild")                       .Means("Build of the camera's software");
    table.ReadOnly<&I::GetSoftwareVersion>      ("softwareversion")                     .Means("Version of the camera's software");
    table.ReadOnly<&I::GetFirmwareVersion>      ("firmwareversion")                     .Means("Version of the firmware");
    table.ReadOnly<&I::GetHardwareVersion>      ("hardwareversion")                     .Means("Version of the hardware");
}

void AddNetwork(FunctionTable& table) {
    using I = IGigECamera;
    table.Topic(Topics::network);
    table.ReadOnly<&I::GetMacAddress>                     ("macaddress")
        .Means("MAC address");
    table.ReadOnly<&I::GetCurrentIPAddress>               ("ipaddress")
        .Means("IP address in use");
    table.ReadOnly<&I::GetCurrentSubnetmask>              ("subnetmask")
        .Means("Subnet mask in use");
    table.ReadOnly<&I::GetCurrentDefaultGateway>          ("gateway")
        .Means("Default gateway in use");
    table.ReadOnly<&I::GetCurrentIPConfig>                ("ipconfig")    .Hexadecimal()
        .Means("How the camera gets its address: bit 0 persistent address, bit 1 DHCP");
    table.ReadOnly<&I::GetGigEVersion>                    ("gigeversion") .Hexadecimal()
        .Means("Version of the GigE Vision standard: major number in the upper 16 bits, minor in the lower");
    table.ReadOnly<&I::GetFirstUrl>                       ("firsturl")
        .Means("First URL of the camera description");
    table.ReadOnly<&I::GetSecondUrl>                      ("secondurl")
        .Means("Second URL of the camera description");
    table.Network<&I::GetUserDefinedName, &SetUserName>   ("username")
        .Means("Name that the user gave to the camera, at most 15 bytes");
    table.Address<&GetDHCP, &SetDHCP>                     ("dhcp")        .OnOff()
        .Means("Whether the camera asks for its address by DHCP");
    table.Address<&GetPersistentIP, &SetPersistentIP>     ("persistentip").Form("off|ADDRESS,MASK,GATEWAY", &WhyInvalidPersistentIP)
        .Caution(&CautionAboutPersistentIP).Distinct()
        .Means("Address, subnet mask and gateway that the camera uses from its next start on, or off");
    table.Network<&I::GetPacketSize, &I::SetPacketSize>   ("packetsize")  .Unit("bytes").Range(1404, 65532).Rounds(Rounding::DownToFours)
        .LockedInAcquisition(table.IsM2VX()).Means("Size of a stream packet, a multiple of 4");
    table.Network<&I::GetPacketDelay, &I::SetPacketDelay> ("packetdelay") .Unit("ticks")
        .LockedInAcquisition(table.IsM2VX()).Means("Pause between stream packets");
}

void AddFrames(FunctionTable& table) {
    table.Topic(Topics::image);
    table.ReadOnly<&ISignalFormat::GetImageSize> ("imagesize")    .Unit("px")    .Means("Width and height of the image");
    table.ReadOnly<&PixelFormatOf>               ("pixelformat")  .Hexadecimal() .Means("GigE Vision pixel format; bit 31 marks one of the device");
    table.ReadOnly<&TimePerFrame>                ("timeperframe") .Unit("ns")    .Means("Duration of a frame, modulo 2^32; 0 if not reported");
}

void AddProcessing(FunctionTable& table) {
    using I = ILookUpTable;
    using E = IDigitalEnhancement;
    table.Topic(Topics::processing);
    table.Setting<&E::GetSharpness, &E::SetSharpness>         ("sharpness")     .Range(0, 255) .Means("Sharpness, in steps of the camera");
    table.Setting<&I::GetLUTMode, &I::SetLUTMode>             ("lutmode")       .OneOf(0, 1)   .Means("Mode of the look-up table; a code of the camera");
    table.Setting<&I::GetNegativeImage, &I::SetNegativeImage> ("negativeimage") .OnOff()       .Means("Whether the image is inverted");
}

void AddMemory(FunctionTable& table) {
    using I = IMemory;
    table.Topic(Topics::memory);
    table.Setting<&I::GetVerticalFlip, &I::SetVerticalFlip>               (Name::verticalFlip)    .OnOff()
        .Means("Whether the image is turned upside down");
    table.Setting<&I::GetHorizontalFlip, &I::SetHorizontalFlip>           ("horizontalflip")      .OnOff()
        .Means("Whether the image is mirrored");
    table.Setting<&I::GetLastImageHold, &I::SetLastImageHold>             ("lastimagehold")       .OnOff()
        .Means("Whether the last image is held");
    table.Setting<&I::GetImageSubtraction, &I::SetImageSubtraction>       ("imagesubtraction")    .OnOff()
        .Means("Whether the stored image is subtracted from the live one");
    table.Setting<&I::GetRecursiveFilter, &I::SetRecursiveFilter>         (Name::recursiveFilter) .OneOf(0, 4).Named(Named::off)
        .Means("Strength of the recursive filter");
    table.Setting<&I::GetAutoMotionDetection, &I::SetAutoMotionDetection> ("automotiondetection") .OnOff().Needs(Name::recursiveFilter, {1, 2, 3, 4})
        .Means("Automatic motion detection");
    table.WriteOnly<&I::StoreImage> ("storeimage") .OnOff().PresentWith(Name::verticalFlip).PublishedAs("imagestore")
        .Means("Stores the image, if set to on");
}

void AddSettingsSets(FunctionTable& table) {
    using I = IBasicSettings;
    table.Topic(Topics::settings);
    table.Row<&I::GetStartupSettings, &I::SetStartupSettings> ("startupsettings") .OneOf(0, 2)
        .Means("Settings set that is loaded at the start; 0 is the factory's");
    table.WriteOnly<&I::LoadSettings>                         ("loadsettings")    .OneOf(0, 2).LockedInAcquisition(table.IsM2VX())
        .Means("Makes a settings set current; 0 is the factory's");
    table.WriteOnly<&I::SaveSettings>                         ("savesettings")    .OneOf(1, 2)
        .Means("Saves the current settings as a set; 0 is the factory's");
    table.ReadOnly<&I::GetOperationMode>                      ("operationmode")
        .Means("Operation mode; a code of the camera");
    table.ReadOnly<&I::GetErrorRegisterStatus>                ("errorregister")   .Hexadecimal()
        .Means("Errors of the camera, one in each bit");
}

void AddTests(FunctionTable& table) {
    table.Topic(Topics::tests);
    table.ReadOnly<&BoardTemperature> ("temperature") .Unit("degC") .Means("Temperature of the board");
}

// clang-format on

} // namespace Host
