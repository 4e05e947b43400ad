#include "Host/Channel/GigEConnection.h"
#include "Host/Channel/ReadOnlyPort.h"
#include "Host/Errors.h"

#include <thread>

namespace Host {

namespace {

/// Nothing has to be given back at its end, so that a signal may end the program at any time.
class ReadOnlyConnection final : public NetworkConnection {
public:
    explicit ReadOnlyConnection(const std::string& address) : port(address) {}

    [[nodiscard]] std::string ModelName() override { return port.ModelName(); }
    [[nodiscard]] SDK4::IControlPort& Port() override { return port; }
    [[nodiscard]] std::string Describe() const override { return port.Name(); }
    void Wait(std::chrono::microseconds time) override { std::this_thread::sleep_for(time); }
    void TimePassed(std::chrono::microseconds /*time*/) override {}
    [[nodiscard]] bool HasControl() const override { return false; }
    void RequireControl() override { throw OpenError(port.DescribeDenial()); }
    [[nodiscard]] std::string TakeDenial() override { return port.TakeDenied() ? port.DescribeDenial() : ""; }
    void RequireUnbroken() override {} // each access that fails was reported
    [[nodiscard]] std::unique_ptr<PictureSource> OpenStream(const PictureFormat& /*format*/) override {
        throw OpenError(port.DescribeDenial());
    }
    void SaveState() const override {} // a real camera keeps its state

private:
    ReadOnlyPort port;
};

} // namespace

std::unique_ptr<NetworkConnection> ConnectReadOnly(const std::string& address) {
    return std::make_unique<ReadOnlyConnection>(address);
}

} // namespace Host
