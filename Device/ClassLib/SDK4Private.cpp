#include "SDK4Private.h"

#include "GigEBootstrap.h"
#include "RegisterAccess.h"

#include <optional>

namespace SDK4::Control {

namespace bootstrap = GigEBootstrap;
using std::uint32_t;

std::string CurrentIPAddress;
std::string CurrentSubnetmask;
std::string CurrentDefaultGateway;

CBootstrap::CBootstrap(IControlPort* controlPort) : port(controlPort) {
    const uint32_t supported = port->ReadRegister(bootstrap::SupportedIPConfig);
    const uint32_t current = CBootstrap::GetCurrentIPConfig();
    const char* address = CBootstrap::GetCurrentIPAddress();
    const char* mask = CBootstrap::GetCurrentSubnetmask();
    const char* gateway = CBootstrap::GetCurrentDefaultGateway();
    SDK4_LOG(Info, "SupportedIPConfig   : 0x" << std::hex << supported);
    SDK4_LOG(Info, "CurrentIPConfig     : 0x" << std::hex << current);
    SDK4_LOG(Info, "CurrentIPAddress    : " << address);
    SDK4_LOG(Info, "CurrentSubNetMask   : " << mask);
    SDK4_LOG(Info, "CurrentGateway      : " << gateway);

    const KIPAddress persistentAddress(port->ReadRegister(bootstrap::PersistentAddress));
    const KIPAddress persistentMask(port->ReadRegister(bootstrap::PersistentMask));
    const KIPAddress persistentGateway(port->ReadRegister(bootstrap::PersistentGateway));
    SDK4_LOG(Info, "PersistentIPAddress : " << std::string(persistentAddress));
    SDK4_LOG(Info, "PersistentSubNetMask: " << std::string(persistentMask));
    SDK4_LOG(Info, "PersistentGateway   : " << std::string(persistentGateway));

    const uint32_t capability = port->ReadRegister(bootstrap::GvcpCapability);
    SDK4_LOG(Info, "GVCP Capability     : 0x" << std::hex << capability);
    std::optional<uint32_t> configuration;
    try {
        configuration = port->ReadRegister(bootstrap::GvcpConfiguration);
    } catch (...) { // optional register
    }
    if (configuration) {
        SDK4_LOG(Info, "GVCP Configuration  : 0x" << std::hex << *configuration);
    } else {
        SDK4_LOG(Warn, "GVCP Configuration  : Invalid Address");
    }
}

// clang-format off
unsigned int CBootstrap::GetGigEVersion()                   { return port->ReadRegister(bootstrap::Version); }
unsigned int CBootstrap::GetCurrentIPConfig()               { return port->ReadRegister(bootstrap::CurrentIPConfig); }
unsigned int CBootstrap::GetPacketSize()                    { return port->ReadRegister(bootstrap::PacketSize); }
unsigned int CBootstrap::GetPacketDelay()                   { return port->ReadRegister(bootstrap::PacketDelay); }
void         CBootstrap::SetPacketDelay(unsigned int delay) { port->WriteRegister(bootstrap::PacketDelay, delay); }
void         CBootstrap::DisablePersistentIP()              { bootstrap::SwitchIfSupported(port, bootstrap::PersistentIP, false); }
void         CBootstrap::EnableDHCP()                       { bootstrap::SwitchIfSupported(port, bootstrap::DHCP, true); }
void         CBootstrap::DisableDHCP()                      { bootstrap::SwitchIfSupported(port, bootstrap::DHCP, false); }
const char*  CBootstrap::GetFirstUrl()                      { return port->ReadString(bootstrap::FirstUrl, bootstrap::UrlLength); }
const char*  CBootstrap::GetSecondUrl()                     { return port->ReadString(bootstrap::SecondUrl, bootstrap::UrlLength); }
const char*  CBootstrap::GetUserDefinedName()               { return port->ReadString(bootstrap::UserDefinedName, bootstrap::UserDefinedNameLength); }
// clang-format on

const char* CBootstrap::GetMacAddress() {
    static bootstrap::MacText text;
    bootstrap::ReadMacAddress(port, text);
    return text;
}

const char* CBootstrap::GetCurrentIPAddress() {
    const uint32_t address = port->ReadRegister(bootstrap::CurrentAddress);
    SDK4_LOG(Info, "IPAddress    : " << std::hex << address);
    CurrentIPAddress = KIPAddress(address);
    SDK4_LOG(Info, "IPAddress    : " << CurrentIPAddress);
    return CurrentIPAddress.c_str();
}

const char* CBootstrap::GetCurrentSubnetmask() {
    CurrentSubnetmask = KIPAddress(port->ReadRegister(bootstrap::CurrentMask));
    return CurrentSubnetmask.c_str();
}

const char* CBootstrap::GetCurrentDefaultGateway() {
    CurrentDefaultGateway = KIPAddress(port->ReadRegister(bootstrap::CurrentGateway));
    return CurrentDefaultGateway.c_str();
}

void CBootstrap::SetPacketSize(unsigned int size) {
    if (!bootstrap::WritePacketSize(port, size)) {
        SDK4_THROW(SDK4_ERR_OUTOFRANGE);
    }
}

void CBootstrap::EnablePersistentIP(const char* ip, const char* mask, const char* gateway) {
    if (ip == nullptr || mask == nullptr || gateway == nullptr) {
        SDK4_THROW(SDK4_ERR_INVALID_PARAMETER);
    }
    if (!bootstrap::Supports(port, bootstrap::PersistentIP)) {
        return;
    }
    // The numbers are reused: a number that is missing in a text keeps the value from the text before.
    std::array<unsigned int, 4> numbers{};
    const uint32_t newAddress = bootstrap::ParseAddress(ip, numbers);
    const uint32_t newMask = bootstrap::ParseAddress(mask, numbers);
    const uint32_t newGateway = bootstrap::ParseAddress(gateway, numbers);
    const bootstrap::PersistentConfig wanted = {newAddress, newMask, newGateway};
    if (!bootstrap::InCurrentSubnet(port, wanted)) {
        SDK4_LOG(Warn, "Unreachable Subnet :0x" << std::hex << (wanted.mask | wanted.address));
        return;
    }
    bootstrap::Switch(port, bootstrap::PersistentIP, true);
    SDK4_LOG(Info, "StaticIPAddress :0x" << std::hex << wanted.address);
    SDK4_LOG(Info, "StaticSubNetMask:0x" << std::hex << wanted.mask);
    SDK4_LOG(Info, "StaticGateway   :0x" << std::hex << wanted.gateway);
    bootstrap::WritePersistentConfig(port, wanted);
}

void CBootstrap::SetUserDefinedName(const char* name) {
    if (name == nullptr) {
        SDK4_THROW(SDK4_ERR_INVALID_PARAMETER);
    }
    bootstrap::WriteUserDefinedName(port, name);
}

// clang-format off
const char*    CGigEGufi::GetDeviceName()           { return Call(SDK4_HERE).Text(DeviceName); }
const char*    CGigEGufi::GetSerialNumber()         { return Call(SDK4_HERE).Text(SerialNumber); }
unsigned int   CGigEGufi::GetFunctionModelID()      { return Call(SDK4_HERE).Word(FunctionModelID); }
SDK4_KVERSION  CGigEGufi::GetFunctionModelVersion() { return Call(SDK4_HERE).Pair<SDK4_KVERSION>(FunctionModelVersion); }
SDK4_KREVISION CGigEGufi::GetRevision()             { return Call(SDK4_HERE).Pair<SDK4_KREVISION>(Revision); }
const char*    CGigEGufi::GetSoftwareBuild()        { return Call(SDK4_HERE).Text(SoftwareBuild); }
SDK4_KVERSION  CGigEGufi::GetSoftwareVersion()      { return Call(SDK4_HERE).Pair<SDK4_KVERSION>(SoftwareVersion); }
SDK4_KVERSION  CGigEGufi::GetHardwareVersion()      { return Call(SDK4_HERE).Pair<SDK4_KVERSION>(HardwareVersion); }
SDK4_KVERSION  CGigEGufi::GetFirmwareVersion()      { return Call(SDK4_HERE).Pair<SDK4_KVERSION>(FirmwareVersion); }

const char* CGigEAcqControl::GetClassID()         { SDK4_LOG_CALL(); return port->ReadString(bootstrap::ModelName, bootstrap::ModelNameLength); }
uint32_t    CGigEAcqControl::GetAcquisitionMode() { return Call(SDK4_HERE).Word(AcquisitionMode); }
uint32_t    CGigEAcqControl::GetPixelFormat()     { return Call(SDK4_HERE).Word(PixelFormat); }
uint32_t    CGigEAcqControl::GetWidth()           { return Call(SDK4_HERE).Word(Width); }
uint32_t    CGigEAcqControl::GetHeight()          { return Call(SDK4_HERE).Word(Height); }

void CGigEAcqControl::SetAcquisitionMode(uint32_t mode) { SDK4_LOG(Debug, "Call(" << mode << ")"); Access().SetWord(AcquisitionMode, mode); }
void CGigEAcqControl::StartAcquisition()                { SDK4_LOG(Info, "Call"); Access().SetWord(AcquisitionStart, 1u); }
// Intended: the write itself is the command. Stop has its own register and takes 0.
void CGigEAcqControl::StopAcquisition()                 { SDK4_LOG(Info, "Call"); Access().SetWord(AcquisitionStop, 0u); }

SDK4_AFE_PARAM CAFE::GetAFE(SDK4_AFE_SELECT select)                       { return Call(SDK4_HERE).Selected<SDK4_AFE_PARAM>(AFE, select); }
void           CAFE::SetAFE(SDK4_AFE_SELECT select, SDK4_AFE_PARAM param) { Call(SDK4_HERE).SetRecord(AFE, select, param); }

void     CClaryon::SetCCDControl(uint32_t value) { SDK4_LOG(Debug, "Call(" << value << ")"); Access().SetWord(CCDControl, value); }
uint32_t CClaryon::GetCCDControl()               { return Call(SDK4_HERE).Word(CCDControl); }
void     CClaryon::WriteCOM(uint32_t value)      { SDK4_LOG(Debug, "Call(" << value << ")"); Access().SetWord(COM, value); }
uint32_t CClaryon::ReadCOM()                     { return Call(SDK4_HERE).Word(COM); }
// clang-format on

} // namespace SDK4::Control
