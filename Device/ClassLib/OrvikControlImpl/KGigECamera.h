#pragma once

#include "GigEBootstrap.h"

#include <SDK4/IControlPort.h>
#include <SDK4/IGigECamera.h>

namespace SDK4::Control {

/// Network configuration of the feature-based control, read from the bootstrap registers without caching.
///
/// The texts of the MAC and IP addresses are in static buffers, one per operation, shared by all objects. A text is
/// valid until the next call of the same operation. Names and URLs are the port's texts.
class KGigECamera : public IGigECamera {
public:
    explicit KGigECamera(IControlPort* controlPort);

    unsigned int GetGigEVersion() override;
    const char* GetMacAddress() override;
    const char* GetCurrentIPAddress() override;
    const char* GetCurrentSubnetmask() override;
    const char* GetCurrentDefaultGateway() override;
    void SetPacketSize(unsigned int size) override;
    unsigned int GetPacketSize() override;
    void SetPacketDelay(unsigned int delay) override;
    unsigned int GetPacketDelay() override;
    unsigned int GetCurrentIPConfig() override;
    void EnablePersistentIP(const char* ip, const char* mask, const char* gateway) override;
    void DisablePersistentIP() override;
    void EnableDHCP() override;
    void DisableDHCP() override;
    const char* GetFirstUrl() override;
    const char* GetSecondUrl() override;
    const char* GetUserDefinedName() override;
    void SetUserDefinedName(const char* name) override;

private:
    void LogNetworkState();
    void LogWord(const char* label, GigEBootstrap::Address address);
    void LogAddress(const char* label, GigEBootstrap::Address address);

    IControlPort* port;
};

} // namespace SDK4::Control
