#pragma once

#include <SDK4/Export.h>

namespace SDK4::Control {

/// Network configuration, in the bootstrap registers of the GigE Vision standard. Nothing is cached. Addresses are
/// texts such as "192.168.0.10". A text that belongs to the port is null if the port has none.
class SDK4_PUBLIC IGigECamera {
public:
    /// Version of the standard: major number in the upper 16 bits, minor in the lower. Register 0x0000.
    virtual unsigned int GetGigEVersion() = 0;

    /// MAC address, "0A:1B:2C:3D:4E:5F". Registers 0x000C (low word, read first) and 0x0008.
    virtual const char* GetMacAddress() = 0;

    /// IP address in use. Register 0x0024.
    virtual const char* GetCurrentIPAddress() = 0;

    /// Subnet mask in use. Register 0x0034.
    virtual const char* GetCurrentSubnetmask() = 0;

    /// Default gateway in use. Register 0x0044.
    virtual const char* GetCurrentDefaultGateway() = 0;

    /// Sets the size of a stream packet in bytes, 1404 to 65532, rounded down to a multiple of 4. The whole register is
    /// written: its flag bits become 0. Register 0x0D04.
    /// @throws SDK4_ERR_OUTOFRANGE after the nearest limit was written.
    /// @throws SDK4_ERR_ACQUISITIONRUNNING (M2VX) while acquisition runs; nothing is written.
    virtual void SetPacketSize(unsigned int size) = 0;

    /// The packet size register as it is, flag bits included. Register 0x0D04.
    virtual unsigned int GetPacketSize() = 0;

    /// Sets the pause between stream packets in ticks of the camera's timestamp counter; not checked. Register 0x0D08.
    /// @throws SDK4_ERR_ACQUISITIONRUNNING (M2VX) while acquisition runs; nothing is written.
    virtual void SetPacketDelay(unsigned int delay) = 0;

    /// Pause between stream packets in timestamp ticks. Register 0x0D08.
    virtual unsigned int GetPacketDelay() = 0;

    /// How the camera gets its address: bit 0 persistent IP, bit 1 DHCP; the other bits as they are. Register 0x0014.
    virtual unsigned int GetCurrentIPConfig() = 0;

    /// Gives the camera a persistent address: sets bit 0 of 0x0014, then writes 0x064C (address), 0x065C (mask) and
    /// 0x066C (gateway). Silently does nothing when the camera supports no persistent address (bit 0 of 0x0010), or
    /// when address and mask do not match the current subnet of the camera. Numbers are truncated to one octet. Invalid
    /// addresses are not detected: a missing number is 0 (Orvik), or that of the text before it, 0 for the first text
    /// (M2VX).
    /// @throws SDK4_ERR_INVALID_PARAMETER for a null text, before any access.
    virtual void EnablePersistentIP(const char* ip, const char* mask, const char* gateway) = 0;

    /// Clears bit 0 of 0x0014 if the camera supports persistent addresses (bit 0 of 0x0010), else does nothing.
    virtual void DisablePersistentIP() = 0;

    /// Sets bit 1 of 0x0014 if the camera supports DHCP (bit 1 of 0x0010), else does nothing.
    virtual void EnableDHCP() = 0;

    /// Clears bit 1 of 0x0014 if the camera supports DHCP (bit 1 of 0x0010), else does nothing.
    virtual void DisableDHCP() = 0;

    /// First URL of the camera description, at most 512 bytes. 0x0200. The text is the port's.
    virtual const char* GetFirstUrl() = 0;

    /// Second URL of the camera description, at most 512 bytes. 0x0400. The text is the port's.
    virtual const char* GetSecondUrl() = 0;

    /// The name that the user gave to the camera, at most 16 bytes. 0x00E8. The text is the port's.
    virtual const char* GetUserDefinedName() = 0;

    /// Names the camera: the first 15 characters of @p name, filled up to 16 bytes with zeros. 0x00E8.
    /// @throws SDK4_ERR_INVALID_PARAMETER for a null text, before any access.
    virtual void SetUserDefinedName(const char* name) = 0;
};

} // namespace SDK4::Control
