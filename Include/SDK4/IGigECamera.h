#pragma once

#include <SDK4/Export.h>

namespace SDK4::Control {

/// How the camera sits on the network.
class SDK4_PUBLIC IGigECamera {
public:
    virtual unsigned int GetGigEVersion() = 0;
    virtual const char* GetMacAddress() = 0;
    virtual const char* GetCurrentIPAddress() = 0;
    virtual const char* GetCurrentSubnetmask() = 0;
    virtual const char* GetCurrentDefaultGateway() = 0;
    virtual void SetPacketSize(unsigned int size) = 0;
    virtual unsigned int GetPacketSize() = 0;
    virtual void SetPacketDelay(unsigned int delay) = 0;
    virtual unsigned int GetPacketDelay() = 0;
    virtual unsigned int GetCurrentIPConfig() = 0;
    virtual void EnablePersistentIP(const char* ip, const char* mask, const char* gateway) = 0;
    virtual void DisablePersistentIP() = 0;
    virtual void EnableDHCP() = 0;
    virtual void DisableDHCP() = 0;
    virtual const char* GetFirstUrl() = 0;
    virtual const char* GetSecondUrl() = 0;
    virtual const char* GetUserDefinedName() = 0;
    virtual void SetUserDefinedName(const char* name) = 0;
};

} // namespace SDK4::Control
