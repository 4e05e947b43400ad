#include "Codes.h"
#include "Names.h"
#include "Tables.h"

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
unsigned int PixelFormat(IDSMediaType& stream) { return Frame(stream).GetFormat(); }
unsigned int TimePerFrame(IDSMediaType& stream) { return Frame(stream).GetTimePerFrame(); }

SDK4_ENUM_SWITCH GetDHCP(IGigECamera& camera) {
    return (camera.GetCurrentIPConfig() & 2U) != 0 ? SDK4_SWITCH_ON : SDK4_SWITCH_OFF;
}
void SetDHCP(IGigECamera& camera, SDK4_ENUM_SWITCH on) {
    on == SDK4_SWITCH_OFF ? camera.DisableDHCP() : camera.EnableDHCP();
}

} // namespace

// clang-format off

void AddIdentity(FunctionTable& table) {
    table.ReadOnly<&IGufi::GetDeviceName>           ("devicename");
    table.ReadOnly<&IGufi::GetSerialNumber>         ("serialnumber");
    table.ReadOnly<&IGufi::GetFunctionModelID>      ("functionmodelid").Hexadecimal();
    table.ReadOnly<&IGufi::GetFunctionModelVersion> ("functionmodelversion");
    table.ReadOnly<&IGufi::GetRevision>             ("revision");
    table.ReadOnly<&IGufi::GetSoftwareBuild>        ("softwarebuild");
    table.ReadOnly<&IGufi::GetSoftwareVersion>      ("softwareversion");
    table.ReadOnly<&IGufi::GetFirmwareVersion>      ("firmwareversion");
    table.ReadOnly<&IGufi::GetHardwareVersion>      ("hardwareversion");
}

void AddNetwork(FunctionTable& table) {
    using I = IGigECamera;
    table.ReadOnly<&I::GetMacAddress>                           ("macaddress");
    table.ReadOnly<&I::GetCurrentIPAddress>                     ("ipaddress");
    table.ReadOnly<&I::GetCurrentSubnetmask>                    ("subnetmask");
    table.ReadOnly<&I::GetCurrentDefaultGateway>                ("gateway");
    table.ReadOnly<&I::GetGigEVersion>                          ("gigeversion")  .Hexadecimal();
    table.Row<&I::GetUserDefinedName, &I::SetUserDefinedName>   ("username")     .Restored(Restore::Network);
    table.Row<&GetDHCP, &SetDHCP>                               ("dhcp")         .OneOf(Named::onOff).Restored(Restore::Network);
    table.Row<&I::GetPacketSize, &I::SetPacketSize>             ("packetsize")   .Unit("bytes").Range(1404, 65532).Rounds().Restored(Restore::Network);
    table.Row<&I::GetPacketDelay, &I::SetPacketDelay>           ("packetdelay")  .Unit("ticks").Restored(Restore::Network);
}

/// What the camera delivers, once coding and readout area are chosen.
void AddFrames(FunctionTable& table) {
    table.ReadOnly<&ISignalFormat::GetImageSize>                ("imagesize")    .Unit("px");
    table.ReadOnly<&PixelFormat>                                ("pixelformat")  .Hexadecimal();
    table.ReadOnly<&TimePerFrame>                               ("timeperframe") .Unit("ns");
}

// clang-format on

} // namespace Host
