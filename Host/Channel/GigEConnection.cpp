#include "Host/Channel/GigEConnection.h"

#include "Host/Channel/DeferredTermination.h"
#include "Host/Channel/GigEPort.h"
#include "Host/Channel/GigEStream.h"
#include "Host/Errors.h"

#include <thread>

namespace Host {

namespace {

class GigEConnection final : public NetworkConnection {
public:
    explicit GigEConnection(const std::string& address) : port(address) {}

    [[nodiscard]] std::string ModelName() override { return port.ModelName(); }
    [[nodiscard]] SDK4::IControlPort& Port() override { return port; }
    [[nodiscard]] std::string Describe() const override { return port.Name(); }
    /// Not cut short by a signal: settings that are restored then need the time too.
    void Wait(std::chrono::microseconds time) override { std::this_thread::sleep_for(time); }
    void TimePassed(std::chrono::microseconds /*time*/) override {}
    [[nodiscard]] bool HasControl() const override { return port.HasControl(); }
    void RequireControl() override {
        port.TryToTakeControl();
        if (!port.HasControl()) {
            throw CameraControlled(port.DescribeController());
        }
    }
    [[nodiscard]] std::string TakeDenial() override { return port.TakeDenied() ? port.DescribeController() : ""; }
    void RequireUnbroken() override { port.RequireUnbrokenControl(); }
    [[nodiscard]] std::unique_ptr<PictureSource> OpenStream(const PictureFormat& format) override {
        return OpenGigEStream(port.Device(), port, format);
    }
    void SaveState() const override {} // a real camera keeps its state

private:
    DeferredTermination end; // before the port, which releases control
    GigEPort port;
};

} // namespace

std::unique_ptr<NetworkConnection> ConnectGigE(const std::string& address) {
    return std::make_unique<GigEConnection>(address);
}

} // namespace Host
