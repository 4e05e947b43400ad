// The camera on the network: the bootstrap registers of the GigE Vision standard.

#include "Tests/Operations/Operations.h"

using namespace SDK4::Control;

namespace Test {

namespace {

/// A camera at 192.168.1.10 / 255.255.255.0. @p supported and @p configured: bit 0 persistent IP, bit 1 DHCP.
State Network(std::uint32_t supported, std::uint32_t configured) {
    return {{{0x0010, Words({supported})},
             {0x0014, Words({configured})},
             {0x0024, Words({0xC0A8010A})},
             {0x0034, Words({0xFFFFFF00})},
             {0x0044, Words({0xC0A80101})}}};
}

State WithText(std::uint32_t address, const std::string& text) {
    return {{{address, Bytes(text.begin(), text.end())}}};
}

Call Persistent(const char* ip, const char* mask, const char* gateway) {
    return On(&IGigECamera::EnablePersistentIP, ip, mask, gateway);
}

/// The accesses that set a persistent address of 192.168.1.20 / 255.255.255.0, gateway 192.168.1.1.
const char* const persistentIP =
    "r 0010; r 0024; r 0034; r 0014; w 0014=7; w 064C=3232235796; w 065C=4294967040; w 066C=3232235777";

} // namespace

// clang-format off
std::vector<Operation> NetworkOperations() {
    const char* const ip = "192.168.1.20";
    const char* const mask = "255.255.255.0";
    const char* const gateway = "192.168.1.1";
    const State mac{{{0x0008, Words({0xFFFF0A1B})}, {0x000C, Words({0x2C3D4E5F})}}};
    const Call setPersistent = Persistent(ip, mask, gateway);
    return {
        {"IGigECamera::GetGigEVersion",     On(&IGigECamera::GetGigEVersion), "65538", Always("r 0000"), With(0, 0x00010002)},
        {"IGigECamera::GetMacAddress",      On(&IGigECamera::GetMacAddress), "0A:1B:2C:3D:4E:5F", Always("r 000C; r 0008"), mac},
        {"IGigECamera::GetCurrentIPAddress",     On(&IGigECamera::GetCurrentIPAddress),      "192.168.1.10",  Always("r 0024"), Network(3, 6)},
        {"IGigECamera::GetCurrentIPAddress longest", On(&IGigECamera::GetCurrentIPAddress),  "255.255.255.255", Always("r 0024"), With(0x0024, 0xFFFFFFFF)},
        {"IGigECamera::GetCurrentSubnetmask",    On(&IGigECamera::GetCurrentSubnetmask),     "255.255.255.0", Always("r 0034"), Network(3, 6)},
        {"IGigECamera::GetCurrentDefaultGateway", On(&IGigECamera::GetCurrentDefaultGateway), "192.168.1.1",  Always("r 0044"), Network(3, 6)},
        {"IGigECamera::GetCurrentIPConfig", On(&IGigECamera::GetCurrentIPConfig), "6", Always("r 0014"), Network(3, 6)},

        {"IGigECamera::SetPacketSize",       On(&IGigECamera::SetPacketSize, 1500),  done,       Always("w 0D04=1500")},
        {"IGigECamera::SetPacketSize 1503",  On(&IGigECamera::SetPacketSize, 1503),  done,       Always("w 0D04=1500")},
        {"IGigECamera::SetPacketSize 0",     On(&IGigECamera::SetPacketSize, 0),     outOfRange, Always("w 0D04=1404")},
        {"IGigECamera::SetPacketSize 1403",  On(&IGigECamera::SetPacketSize, 1403),  outOfRange, Always("w 0D04=1404")},
        {"IGigECamera::SetPacketSize 1404",  On(&IGigECamera::SetPacketSize, 1404),  done,       Always("w 0D04=1404")},
        {"IGigECamera::SetPacketSize 65532", On(&IGigECamera::SetPacketSize, 65532), done,       Always("w 0D04=65532")},
        {"IGigECamera::SetPacketSize 65533", On(&IGigECamera::SetPacketSize, 65533), outOfRange, Always("w 0D04=65532")},
        {"IGigECamera::SetPacketSize greatest", On(&IGigECamera::SetPacketSize, 0xFFFFFFFF), outOfRange, Always("w 0D04=65532")},
        {"IGigECamera::GetPacketSize",       On(&IGigECamera::GetPacketSize), "1500", Always("r 0D04"), With(0x0D04, 1500)},
        {"IGigECamera::SetPacketDelay",      On(&IGigECamera::SetPacketDelay, 4000000000), done, Always("w 0D08=4000000000")},
        {"IGigECamera::GetPacketDelay",      On(&IGigECamera::GetPacketDelay), "12", Always("r 0D08"), With(0x0D08, 12)},

        {"IGigECamera::EnablePersistentIP",               setPersistent, done, Always(persistentIP), Network(3, 6)},
        {"IGigECamera::EnablePersistentIP octet above 255", Persistent("192.168.257.20", mask, gateway), done, Always(persistentIP), Network(1, 6)},
        {"IGigECamera::EnablePersistentIP not supported", setPersistent, done, Always("r 0010"), Network(2, 6)},
        {"IGigECamera::EnablePersistentIP other subnet",  Persistent("10.0.2.5", mask, "10.0.2.1"), done, Always("r 0010; r 0024; r 0034"), Network(3, 6)},
        {"IGigECamera::EnablePersistentIP other mask",    Persistent(ip, "255.255.0.0", gateway), done, Always("r 0010; r 0024; r 0034"), Network(3, 6)},
        {"IGigECamera::EnablePersistentIP null ip",       Persistent(nullptr, mask, gateway), invalid, Never(), Network(3, 6)},
        {"IGigECamera::EnablePersistentIP null mask",     Persistent(ip, nullptr, gateway),   invalid, Never(), Network(3, 6)},
        {"IGigECamera::EnablePersistentIP null gateway",  Persistent(ip, mask, nullptr),      invalid, Never(), Network(3, 6)},
        {"IGigECamera::DisablePersistentIP",               On(&IGigECamera::DisablePersistentIP), done, Always("r 0010; r 0014; w 0014=6"), Network(1, 7)},
        {"IGigECamera::DisablePersistentIP not supported", On(&IGigECamera::DisablePersistentIP), done, Always("r 0010"), Network(2, 7)},
        {"IGigECamera::EnableDHCP",                On(&IGigECamera::EnableDHCP),  done, Always("r 0010; r 0014; w 0014=7"), Network(2, 5)},
        {"IGigECamera::EnableDHCP not supported",  On(&IGigECamera::EnableDHCP),  done, Always("r 0010"), Network(1, 5)},
        {"IGigECamera::DisableDHCP",               On(&IGigECamera::DisableDHCP), done, Always("r 0010; r 0014; w 0014=5"), Network(2, 7)},
        {"IGigECamera::DisableDHCP not supported", On(&IGigECamera::DisableDHCP), done, Always("r 0010"), Network(1, 7)},

        {"IGigECamera::GetFirstUrl",  On(&IGigECamera::GetFirstUrl),  "Local:camera.zip", Always("rs 0200/512"), WithText(0x0200, "Local:camera.zip")},
        {"IGigECamera::GetSecondUrl", On(&IGigECamera::GetSecondUrl), "http://192.0.2.1", Always("rs 0400/512"), WithText(0x0400, "http://192.0.2.1")},
        {"IGigECamera::GetUserDefinedName",      On(&IGigECamera::GetUserDefinedName), "left", Always("rs 00E8/16"), WithText(0x00E8, "left")},
        {"IGigECamera::SetUserDefinedName",      On(&IGigECamera::SetUserDefinedName, "right"), done, Always("ws 00E8/16=right")},
        {"IGigECamera::SetUserDefinedName long", On(&IGigECamera::SetUserDefinedName, "ABCDEFGHIJKLMNOPQRST"), done, Always("ws 00E8/16=ABCDEFGHIJKLMNO")},
        {"IGigECamera::SetUserDefinedName empty", On(&IGigECamera::SetUserDefinedName, ""), done, Always("ws 00E8/16=")},
        {"IGigECamera::SetUserDefinedName null", On(&IGigECamera::SetUserDefinedName, nullptr), invalid, Never()},
    };
}
// clang-format on

} // namespace Test
