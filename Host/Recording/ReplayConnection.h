#pragma once

#include "Host/Connection.h"
#include "Host/Recording/ReplayPort.h"

#include <string>

namespace Host {

/// A recorded camera.
class ReplayConnection final : public Connection {
public:
    /// @throws OpenError for a file that cannot be read or is no recording
    ReplayConnection(const std::string& file, bool loose) : port(ReadRecording(file), loose) {}

    [[nodiscard]] const Recording& Source() const { return port.Source(); }

    [[nodiscard]] SDK4::IControlPort& Port() override { return port; }
    [[nodiscard]] std::string Describe() const override { return "the recorded camera"; }
    void Wait(std::chrono::microseconds time) override { port.Pass(time); }
    void TimePassed(std::chrono::microseconds time) override { port.Pass(time); }
    [[nodiscard]] bool HasControl() const override;
    void RequireControl() override {} // a write that was denied is so again
    [[nodiscard]] std::string TakeDenial() override { return port.TakeDenial(); }
    void RequireUnbroken() override {}
    [[nodiscard]] std::string DescribeRest() const override { return port.DescribeRest(); }
    [[nodiscard]] std::unique_ptr<PictureSource> OpenStream(const PictureFormat& format) override;
    void SaveState() const override {}

private:
    ReplayPort port;
};

} // namespace Host
