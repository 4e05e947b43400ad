#pragma once

// Device access of the property-based controls: network, identity, acquisition, analogue front end, sensor control.
// Every object keeps the host's port and nothing else; nothing is cached.

#include "RegisterMap.h"

#include <SDK4/IControl.h>
#include <SDK4/IControlPort.h>
#include <SDK4/IGigECamera.h>
#include <SDK4/IGufi.h>
#include <SDK4/Records.h>

#include <cstdint>
#include <string>

namespace SDK4::Control {

// The texts returned by the getters of CBootstrap, one of each per process: valid until the next call of the same
// getter on any object. NOLINTBEGIN(readability-identifier-naming): as the getters
extern std::string CurrentIPAddress;
extern std::string CurrentSubnetmask;
extern std::string CurrentDefaultGateway;
// NOLINTEND(readability-identifier-naming)

/// Parameters of the analogue front end.
class IAFE {
public:
    virtual SDK4_AFE_PARAM GetAFE(SDK4_AFE_SELECT select) = 0;
    virtual void SetAFE(SDK4_AFE_SELECT select, SDK4_AFE_PARAM param) = 0;
};

/// The sensor's control word and its serial command channel, both raw.
class IClaryon {
public:
    virtual void SetCCDControl(std::uint32_t value) = 0;
    virtual std::uint32_t GetCCDControl() = 0;
    virtual void WriteCOM(std::uint32_t value) = 0;
    virtual std::uint32_t ReadCOM() = 0;
};

/// Network configuration, in the bootstrap registers of the GigE Vision standard. The constructor reads the network
/// state, whatever the log level, and logs it. It passes exceptions of the port on, except for the GVCP configuration
/// register, which is optional.
class CBootstrap final : public IGigECamera {
public:
    explicit CBootstrap(IControlPort* controlPort);

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
    IControlPort* port;
};

/// Identity of the camera. The texts are the port's.
class CGigEGufi final : public IGufi, private RegisterMap {
public:
    explicit CGigEGufi(IControlPort* controlPort) : RegisterMap(controlPort) {}

    const char* GetDeviceName() override;
    const char* GetSerialNumber() override;
    unsigned int GetFunctionModelID() override;
    SDK4_KVERSION GetFunctionModelVersion() override;
    SDK4_KREVISION GetRevision() override;
    const char* GetSoftwareBuild() override;
    SDK4_KVERSION GetSoftwareVersion() override;
    SDK4_KVERSION GetHardwareVersion() override;
    SDK4_KVERSION GetFirmwareVersion() override;
};

/// Acquisition and image geometry.
class CGigEAcqControl final : public SDK4::IControl, private RegisterMap {
public:
    explicit CGigEAcqControl(IControlPort* controlPort) : RegisterMap(controlPort) {}

    const char* GetClassID() override; ///< the device's model name

    void SetAcquisitionMode(std::uint32_t mode);
    std::uint32_t GetAcquisitionMode();
    void StartAcquisition();
    void StopAcquisition();
    std::uint32_t GetPixelFormat();
    std::uint32_t GetWidth();
    std::uint32_t GetHeight();
};

class CAFE final : public IAFE, private RegisterMap {
public:
    explicit CAFE(IControlPort* controlPort) : RegisterMap(controlPort) {}

    SDK4_AFE_PARAM GetAFE(SDK4_AFE_SELECT select) override;
    void SetAFE(SDK4_AFE_SELECT select, SDK4_AFE_PARAM param) override;
};

class CClaryon final : public IClaryon, private RegisterMap {
public:
    explicit CClaryon(IControlPort* controlPort) : RegisterMap(controlPort) {}

    void SetCCDControl(std::uint32_t value) override;
    std::uint32_t GetCCDControl() override;
    void WriteCOM(std::uint32_t value) override;
    std::uint32_t ReadCOM() override;
};

} // namespace SDK4::Control
