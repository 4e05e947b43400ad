#include "OrvikControlImpl/KGigECamera.h"

#include "GigEBootstrap.h"
#include "Log.h"
#include "RefusingPort.h"

#include <string>

namespace SDK4::Control {

using namespace GigEBootstrap;

namespace {

/// A missing octet is 0.
std::uint32_t ParseFromZeros(const char* text) {
    std::array<unsigned int, 4> numbers{};
    return ParseAddress(text, numbers);
}

} // namespace

KGigECamera::KGigECamera(IControlPort* controlPort) : port(controlPort) {
    SDK4_LOG(Info, "Call");
    // Without a camera there is nothing to log. The log level must not decide whether a control can be created.
    if (logger->isDebugEnabled() && port != RefusingPort::Instance()) {
        LogNetworkState();
    }
}

void KGigECamera::LogNetworkState() {
    LogWord("SupportedIPConfig   : 0x", SupportedIPConfig);
    LogWord("CurrentIPConfig     : 0x", CurrentIPConfig);
    LogAddress("CurrentIPAddress    : ", CurrentAddress);
    LogAddress("CurrentSubNetMask   : ", CurrentMask);
    LogAddress("CurrentGateway      : ", CurrentGateway);
    LogAddress("PersistentIPAddress : ", PersistentAddress);
    LogAddress("PersistentSubNetMask: ", PersistentMask);
    LogAddress("PersistentGateway   : ", PersistentGateway);
    LogWord("GVCP Capability     : 0x", GvcpCapability);
    try {
        LogWord("GVCP Configuration  : 0x", GvcpConfiguration);
    } catch (...) { // optional register; the log level must not keep the camera from being opened
        SDK4_LOG(Debug, "GVCP Configuration  : Invalid Address");
    }
}

void KGigECamera::LogWord(const char* label, Address address) {
    const std::uint32_t word = port->ReadRegister(address);
    SDK4_LOG(Debug, label << std::hex << word);
}

void KGigECamera::LogAddress(const char* label, Address address) {
    const KIPAddress word(port->ReadRegister(address));
    SDK4_LOG(Debug, label << std::string(word));
}

// clang-format off
unsigned int KGigECamera::GetGigEVersion()                   { SDK4_LOG_CALL(); return port->ReadRegister(Version); }
unsigned int KGigECamera::GetPacketSize()                    { SDK4_LOG_CALL(); return port->ReadRegister(PacketSize); }
unsigned int KGigECamera::GetPacketDelay()                   { SDK4_LOG_CALL(); return port->ReadRegister(PacketDelay); }
void         KGigECamera::SetPacketDelay(unsigned int delay) { SDK4_LOG_CALL(); port->WriteRegister(PacketDelay, delay); }
unsigned int KGigECamera::GetCurrentIPConfig()               { SDK4_LOG_CALL(); return port->ReadRegister(CurrentIPConfig); }
void         KGigECamera::DisablePersistentIP()              { SDK4_LOG_CALL(); SwitchIfSupported(port, PersistentIP, false); }
void         KGigECamera::EnableDHCP()                       { SDK4_LOG_CALL(); SwitchIfSupported(port, DHCP, true); }
void         KGigECamera::DisableDHCP()                      { SDK4_LOG_CALL(); SwitchIfSupported(port, DHCP, false); }
const char*  KGigECamera::GetFirstUrl()                      { SDK4_LOG_CALL(); return port->ReadString(FirstUrl, UrlLength); }
const char*  KGigECamera::GetSecondUrl()                     { SDK4_LOG_CALL(); return port->ReadString(SecondUrl, UrlLength); }
const char*  KGigECamera::GetUserDefinedName()               { SDK4_LOG_CALL(); return port->ReadString(UserDefinedName, UserDefinedNameLength); }
// clang-format on

const char* KGigECamera::GetMacAddress() {
    SDK4_LOG_CALL();
    static MacText text;
    ReadMacAddress(port, text);
    return text;
}

const char* KGigECamera::GetCurrentIPAddress() {
    SDK4_LOG_CALL();
    static std::string text;
    text = KIPAddress(port->ReadRegister(CurrentAddress));
    return text.c_str();
}

const char* KGigECamera::GetCurrentSubnetmask() {
    SDK4_LOG_CALL();
    static std::string text;
    text = KIPAddress(port->ReadRegister(CurrentMask));
    return text.c_str();
}

const char* KGigECamera::GetCurrentDefaultGateway() {
    SDK4_LOG_CALL();
    static std::string text;
    text = KIPAddress(port->ReadRegister(CurrentGateway));
    return text.c_str();
}

void KGigECamera::SetPacketSize(unsigned int size) {
    SDK4_LOG_CALL();
    if (!WritePacketSize(port, size)) {
        SDK4_THROW(SDK4_ERR_OUTOFRANGE);
    }
}

void KGigECamera::EnablePersistentIP(const char* ip, const char* mask, const char* gateway) {
    SDK4_LOG_CALL();
    if (ip == nullptr || mask == nullptr || gateway == nullptr) {
        SDK4_THROW(SDK4_ERR_INVALID_PARAMETER);
    }
    if (!Supports(port, PersistentIP)) {
        return;
    }
    const PersistentConfig wanted = {ParseFromZeros(ip), ParseFromZeros(mask), ParseFromZeros(gateway)};
    if (!InCurrentSubnet(port, wanted)) {
        return;
    }
    Switch(port, PersistentIP, true);
    WritePersistentConfig(port, wanted);
}

void KGigECamera::SetUserDefinedName(const char* name) {
    SDK4_LOG(Debug, "CALL");
    if (name == nullptr) {
        SDK4_THROW(SDK4_ERR_INVALID_PARAMETER);
    }
    WriteUserDefinedName(port, name);
}

} // namespace SDK4::Control
