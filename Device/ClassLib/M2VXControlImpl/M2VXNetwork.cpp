// Network configuration and identity. Calls are forwarded, except that stream parameters are locked during acquisition.

#include "M2VXCameraBaseCtrl.h"
#include "M2VXControlImpl/SetterLog.h"

namespace SDK4::Control {

unsigned int CM2VXBaseControl::GetGigEVersion() {
    SDK4_LOG_CALL();
    return bootstrap->GetGigEVersion();
}

const char* CM2VXBaseControl::GetMacAddress() {
    SDK4_LOG_CALL();
    return bootstrap->GetMacAddress();
}

const char* CM2VXBaseControl::GetCurrentIPAddress() {
    SDK4_LOG_CALL();
    return bootstrap->GetCurrentIPAddress();
}

const char* CM2VXBaseControl::GetCurrentSubnetmask() {
    SDK4_LOG_CALL();
    return bootstrap->GetCurrentSubnetmask();
}

const char* CM2VXBaseControl::GetCurrentDefaultGateway() {
    SDK4_LOG_CALL();
    return bootstrap->GetCurrentDefaultGateway();
}

void CM2VXBaseControl::SetPacketSize(unsigned int size) {
    SDK4_LOG_SETTER(size);
    RefuseWhileRunning();
    bootstrap->SetPacketSize(size);
}

unsigned int CM2VXBaseControl::GetPacketSize() {
    SDK4_LOG_CALL();
    return bootstrap->GetPacketSize();
}

void CM2VXBaseControl::SetPacketDelay(unsigned int delay) {
    SDK4_LOG_SETTER(delay);
    RefuseWhileRunning();
    bootstrap->SetPacketDelay(delay);
}

unsigned int CM2VXBaseControl::GetPacketDelay() {
    SDK4_LOG_CALL();
    return bootstrap->GetPacketDelay();
}

unsigned int CM2VXBaseControl::GetCurrentIPConfig() {
    SDK4_LOG_CALL();
    return bootstrap->GetCurrentIPConfig();
}

void CM2VXBaseControl::EnablePersistentIP(const char* ip, const char* mask, const char* gateway) {
    SDK4_LOG_CALL();
    bootstrap->EnablePersistentIP(ip, mask, gateway);
}

void CM2VXBaseControl::DisablePersistentIP() {
    SDK4_LOG_CALL();
    bootstrap->DisablePersistentIP();
}

void CM2VXBaseControl::EnableDHCP() {
    SDK4_LOG_CALL();
    bootstrap->EnableDHCP();
}

void CM2VXBaseControl::DisableDHCP() {
    SDK4_LOG_CALL();
    bootstrap->DisableDHCP();
}

const char* CM2VXBaseControl::GetFirstUrl() {
    SDK4_LOG_CALL();
    return bootstrap->GetFirstUrl();
}

const char* CM2VXBaseControl::GetSecondUrl() {
    SDK4_LOG_CALL();
    return bootstrap->GetSecondUrl();
}

const char* CM2VXBaseControl::GetUserDefinedName() {
    SDK4_LOG_CALL();
    return bootstrap->GetUserDefinedName();
}

void CM2VXBaseControl::SetUserDefinedName(const char* name) {
    SDK4_LOG_SETTER(name);
    bootstrap->SetUserDefinedName(name);
}

const char* CM2VXBaseControl::GetDeviceName() {
    SDK4_LOG_CALL();
    return identity->GetDeviceName();
}

const char* CM2VXBaseControl::GetSerialNumber() {
    SDK4_LOG_CALL();
    return identity->GetSerialNumber();
}

unsigned int CM2VXBaseControl::GetFunctionModelID() {
    SDK4_LOG_CALL();
    return identity->GetFunctionModelID();
}

SDK4_KVERSION CM2VXBaseControl::GetFunctionModelVersion() {
    SDK4_LOG_CALL();
    return identity->GetFunctionModelVersion();
}

SDK4_KREVISION CM2VXBaseControl::GetRevision() {
    SDK4_LOG_CALL();
    return identity->GetRevision();
}

const char* CM2VXBaseControl::GetSoftwareBuild() {
    SDK4_LOG_CALL();
    SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED);
}

SDK4_KVERSION CM2VXBaseControl::GetSoftwareVersion() {
    SDK4_LOG_CALL();
    return identity->GetSoftwareVersion();
}

SDK4_KVERSION CM2VXBaseControl::GetHardwareVersion() {
    SDK4_LOG_CALL();
    SDK4_THROW(SDK4_ERR_NOT_IMPLEMENTED);
}

SDK4_KVERSION CM2VXBaseControl::GetFirmwareVersion() {
    SDK4_LOG_CALL();
    return identity->GetFirmwareVersion();
}

} // namespace SDK4::Control
