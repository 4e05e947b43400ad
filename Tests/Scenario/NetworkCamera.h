#pragma once

#include "Tests/Scenario/HostProcess.h"

namespace Scenario {

/// A simulated camera on the network of this test, which is loopback only (see Tests/on-loopback-alone). There all of
/// 192.168.1.0/24 belongs to this machine. The simulated cameras report the address 192.168.1.10.
class NetworkCamera {
public:
    explicit NetworkCamera(const std::string& model, const std::string& address = "192.168.1.10",
                           std::vector<std::string> options = {})
        : process(QDV12_SIM, Arguments(model, address, std::move(options)), STDOUT_FILENO),
          camera("gige:" + address) {
        EXPECT_TRUE(process.ReadUntil("serial number")) << process.Read();
    }

    /// Stops, continues or terminates it.
    void Signal(int signal) const { process.Signal(signal); }

    /// Runs a command of the host, with CAMERA replaced by this camera.
    [[nodiscard]] Outcome Run(std::string command) const {
        const std::size_t at = command.find("CAMERA");
        return RunHost(at == std::string::npos ? command : command.replace(at, 6, camera));
    }

private:
    static std::vector<std::string> Arguments(const std::string& model, const std::string& address,
                                              std::vector<std::string> options) {
        options.insert(options.begin(), {model, "--address", address});
        return options;
    }

    Running process;
    std::string camera;
};

} // namespace Scenario
