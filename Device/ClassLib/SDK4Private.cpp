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

CBootstrap::CBootstrap(SDK4::IControlPort* port) : m_port(port) {
    const uint32_t supported = m_port->ReadRegister(bootstrap::SupportedIPConfig);
    const uint32_t current = CBootstrap::GetCurrentIPConfig();
    const char* address = CBootstrap::GetCurrentIPAddress();
    const char* mask = CBootstrap::GetCurrentSubnetmask();
    const char* gateway = CBootstrap::GetCurrentDefaultGateway();
    SDK4_LOG(Info, "SupportedIPConfig   : 0x" << std::hex << supported);
    SDK4_LOG(Info, "CurrentIPConfig     : 0x" << std::hex << current);
    SDK4_LOG(Info, "CurrentIPAddress    : " << address);
    SDK4_LOG(Info, "CurrentSubNetMask   : " << mask);
    SDK4_LOG(Info, "CurrentGateway      : " << gateway);

    const KIPAddress persistentAddress(m_port->ReadRegister(bootstrap::PersistentIPAddress));
    const KIPAddress persistentMask(m_port->ReadRegister(bootstrap::PersistentSubnetMask));
    const KIPAddress persistentGateway(m_port->ReadRegister(bootstrap::PersistentDefaultGateway));
    SDK4_LOG(Info, "PersistentIPAddress : " << std::string(persistentAddress));
    SDK4_LOG(Info, "PersistentSubNetMask: " << std::string(persistentMask));
    SDK4_LOG(Info, "PersistentGateway   : " << std::string(persistentGateway));

    const uint32_t capability = m_port->ReadRegister(bootstrap::GvcpCapability);
    SDK4_LOG(Info, "GVCP Capability     : 0x" << std::hex << capability);
    std::optional<uint32_t> configuration;
    try {
        configuration = m_port->ReadRegister(bootstrap::GvcpConfiguration);
    } catch (...) { // some devices lack this register; they are driven all the same
    }
    if (configuration) {
        SDK4_LOG(Info, "GVCP Configuration  : 0x" << std::hex << *configuration);
    } else {
        SDK4_LOG(Warn, "GVCP Configuration  : Invalid Address");
    }
}

// clang-format off
unsigned int CBootstrap::GetGigEVersion()                   { return m_port->ReadRegister(bootstrap::Version); }
unsigned int CBootstrap::GetCurrentIPConfig()               { return m_port->ReadRegister(bootstrap::CurrentIPConfig); }
unsigned int CBootstrap::GetPacketSize()                    { return m_port->ReadRegister(bootstrap::PacketSize); }
unsigned int CBootstrap::GetPacketDelay()                   { return m_port->ReadRegister(bootstrap::PacketDelay); }
void         CBootstrap::SetPacketDelay(unsigned int delay) { m_port->WriteRegister(bootstrap::PacketDelay, delay); }
void         CBootstrap::DisablePersistentIP()              { bootstrap::SwitchIfSupported(m_port, bootstrap::PersistentIP, false); }
void         CBootstrap::EnableDHCP()                       { bootstrap::SwitchIfSupported(m_port, bootstrap::DHCP, true); }
void         CBootstrap::DisableDHCP()                      { bootstrap::SwitchIfSupported(m_port, bootstrap::DHCP, false); }
const char*  CBootstrap::GetFirstUrl()                      { return m_port->ReadString(bootstrap::FirstUrl, bootstrap::UrlLength); }
const char*  CBootstrap::GetSecondUrl()                     { return m_port->ReadString(bootstrap::SecondUrl, bootstrap::UrlLength); }
const char*  CBootstrap::GetUserDefinedName()               { return m_port->ReadString(bootstrap::UserDefinedName, bootstrap::UserDefinedNameLength); }
// clang-format on

const char* CBootstrap::GetMacAddress() {
    static bootstrap::MacText text;
    bootstrap::ReadMacAddress(m_port, text);
    return text;
}

const char* CBootstrap::GetCurrentIPAddress() {
    const uint32_t address = m_port->ReadRegister(bootstrap::CurrentIPAddress);
    SDK4_LOG(Info, "IPAddress    : " << std::hex << address);
    CurrentIPAddress = KIPAddress(address);
    SDK4_LOG(Info, "IPAddress    : " << CurrentIPAddress);
    return CurrentIPAddress.c_str();
}

const char* CBootstrap::GetCurrentSubnetmask() {
    CurrentSubnetmask = KIPAddress(m_port->ReadRegister(bootstrap::CurrentSubnetMask));
    return CurrentSubnetmask.c_str();
}

const char* CBootstrap::GetCurrentDefaultGateway() {
    CurrentDefaultGateway = KIPAddress(m_port->ReadRegister(bootstrap::CurrentDefaultGateway));
    return CurrentDefaultGateway.c_str();
}

void CBootstrap::SetPacketSize(unsigned int size) {
    if (!bootstrap::WritePacketSize(m_port, size)) {
        SDK4_THROW(SDK4_ERR_OUTOFRANGE);
    }
}

void CBootstrap::EnablePersistentIP(const char* ip, const char* mask, const char* gateway) {
    if (ip == nullptr || mask == nullptr || gateway == nullptr) {
        SDK4_THROW(SDK4_ERR_INVALID_PARAMETER);
    }
    if (!bootstrap::Supports(m_port, bootstrap::PersistentIP)) {
        return;
    }
    // The numbers survive from text to text: one that a text does not supply is that of the text before.
    std::array<unsigned int, 4> numbers{};
    const uint32_t newAddress = bootstrap::ParseAddress(ip, numbers);
    const uint32_t newMask = bootstrap::ParseAddress(mask, numbers);
    const uint32_t newGateway = bootstrap::ParseAddress(gateway, numbers);
    const bootstrap::PersistentConfig wanted = {newAddress, newMask, newGateway};
    if (!bootstrap::InCurrentSubnet(m_port, wanted)) {
        SDK4_LOG(Warn, "Unreachable Subnet :0x" << std::hex << (wanted.mask | wanted.address));
        return;
    }
    bootstrap::Switch(m_port, bootstrap::PersistentIP, true);
    SDK4_LOG(Info, "StaticIPAddress :0x" << std::hex << wanted.address);
    SDK4_LOG(Info, "StaticSubNetMask:0x" << std::hex << wanted.mask);
    SDK4_LOG(Info, "StaticGateway   :0x" << std::hex << wanted.gateway);
    bootstrap::WritePersistentConfig(m_port, wanted);
}

void CBootstrap::SetUserDefinedName(const char* name) {
    if (name == nullptr) {
        SDK4_THROW(SDK4_ERR_INVALID_PARAMETER);
    }
    bootstrap::WriteUserDefinedName(m_port, name);
}

// clang-format off
const char*    CGigEGufi::GetDeviceName()              { SDK4_LOG_CALL(); return ReadIdentityText(m_port, Register::DeviceName); }
const char*    CGigEGufi::GetSerialNumber()            { SDK4_LOG_CALL(); return ReadIdentityText(m_port, Register::SerialNumber); }
unsigned int   CGigEGufi::GetFunctionModelID()         { SDK4_LOG_CALL(); return ReadWord(m_port, Register::FunctionModelID); }
SDK4_KVERSION  CGigEGufi::GetFunctionModelVersion()    { SDK4_LOG_CALL(); return ReadPair<SDK4_KVERSION>(m_port, Register::FunctionModelVersion); }
SDK4_KREVISION CGigEGufi::GetRevision()                { SDK4_LOG_CALL(); return ReadPair<SDK4_KREVISION>(m_port, Register::Revision); }
const char*    CGigEGufi::GetSoftwareBuild()           { SDK4_LOG_CALL(); return ReadIdentityText(m_port, Register::SoftwareBuild); }
SDK4_KVERSION  CGigEGufi::GetSoftwareVersion()         { SDK4_LOG_CALL(); return ReadPair<SDK4_KVERSION>(m_port, Register::SoftwareVersion); }
SDK4_KVERSION  CGigEGufi::GetHardwareVersion()         { SDK4_LOG_CALL(); return ReadPair<SDK4_KVERSION>(m_port, Register::HardwareVersion); }
SDK4_KVERSION  CGigEGufi::GetFirmwareVersion()         { SDK4_LOG_CALL(); return ReadPair<SDK4_KVERSION>(m_port, Register::FirmwareVersion); }

const char* CGigEAcqControl::GetClassID()         { SDK4_LOG_CALL(); return m_port->ReadString(bootstrap::ModelName, bootstrap::ModelNameLength); }
uint32_t    CGigEAcqControl::GetAcquisitionMode() { SDK4_LOG_CALL(); return ReadWord(m_port, Register::AcquisitionMode); }
uint32_t    CGigEAcqControl::GetPixelFormat()     { SDK4_LOG_CALL(); return ReadWord(m_port, Register::PixelFormat); }
uint32_t    CGigEAcqControl::GetWidth()           { SDK4_LOG_CALL(); return ReadWord(m_port, Register::Width); }
uint32_t    CGigEAcqControl::GetHeight()          { SDK4_LOG_CALL(); return ReadWord(m_port, Register::Height); }

void CGigEAcqControl::SetAcquisitionMode(uint32_t mode) { SDK4_LOG(Debug, "Call(" << mode << ")"); WriteWord(m_port, Register::AcquisitionMode, mode); }
void CGigEAcqControl::StartAcquisition()                { SDK4_LOG(Info, "Call"); WriteWord(m_port, Register::AcquisitionStart, 1u); }
// Intended: stopping is the write as such, of 0 to a register of its own.
void CGigEAcqControl::StopAcquisition()                 { SDK4_LOG(Info, "Call"); WriteWord(m_port, Register::AcquisitionStop, 0u); }

SDK4_AFE_PARAM CAFE::GetAFE(SDK4_AFE_SELECT select)                       { SDK4_LOG_CALL(); return ReadSelectedRecord<SDK4_AFE_PARAM>(m_port, Register::AFE, select); }
void           CAFE::SetAFE(SDK4_AFE_SELECT select, SDK4_AFE_PARAM param) { SDK4_LOG_CALL(); WriteKeyedBlock(m_port, Register::AFE, select, param); }

void     CClaryon::SetCCDControl(uint32_t value) { SDK4_LOG(Debug, "Call(" << value << ")"); WriteWord(m_port, Register::CCDControl, value); }
uint32_t CClaryon::GetCCDControl()               { SDK4_LOG_CALL(); return ReadWord(m_port, Register::CCDControl); }
void     CClaryon::WriteCOM(uint32_t value)      { SDK4_LOG(Debug, "Call(" << value << ")"); WriteWord(m_port, Register::COM, value); }
uint32_t CClaryon::ReadCOM()                     { SDK4_LOG_CALL(); return ReadWord(m_port, Register::COM); }
// clang-format on

} // namespace SDK4::Control
