#include "Common/ErrorExit.h"
#include "Common/Ipv4.h"
#include "Common/Suggestion.h"
#include "Simulation/CameraState.h"
#include "Simulation/Cameras.h"
#include "Simulation/GigEVision/CommandLine.h"
#include "Simulation/GigEVision/Server.h"
#include "Simulation/Identity.h"

#include <csignal>
#include <iostream>
#include <memory>

namespace Simulation::GigEVision {

namespace {

/// The mask of the network of this machine that the address belongs to; of none, a mask of that address alone.
std::uint32_t SubnetMaskOf(std::uint32_t address) {
    std::uint32_t found = 0;
    for (const Common::NetworkInterface& each : Common::NetworkInterfaces()) {
        if (each.address == address) {
            return each.subnetMask;
        }
        if (((each.address ^ address) & each.subnetMask) == 0) { // all of 127.0.0.0/8 is this machine's, for one
            found = std::max(found, each.subnetMask);
        }
    }
    return found == 0 ? 0xFFFFFFFF : found;
}

/// Gives the camera the identity that was asked for, whatever the state file says.
void SetIdentity(RegisterSpace& space, const Options& options) {
    const char* option = "--serial: ";
    try {
        if (options.serial) {
            space.Load(SerialNumberRegisters(space, *options.serial));
        }
        option = "--mac: ";
        if (options.mac) {
            space.Load(MacAddressRegisters(*options.mac));
        }
    } catch (const IdentityError& error) {
        throw UsageError(option + std::string(error.what()));
    }
}

std::unique_ptr<SimulatedCamera> SwitchOn(const Options& options) {
    auto camera = MakeCamera(options.model, options.seed);
    if (!camera) {
        throw UsageError("unknown model \"" + options.model + '"' + Common::Suggestion(options.model, ModelNames()) +
                         " (qdv12sim --help lists them)");
    }
    if (HasState(options.state)) {
        LoadState(*camera, options.state);
    }
    SetIdentity(camera->Registers(), options);
    for (const std::string& fault : options.faults) {
        camera->InjectFault(fault);
    }
    return camera;
}

/// Tells those who wait for it that the camera can be reached.
void Announce(const Options& options, const RegisterSpace& space) {
    std::cout << options.model << " at " << Common::PrintAddress(options.address) << ':' << Common::Gvcp::port
              << ", MAC " << MacAddressOf(space) << ", serial number " << SerialNumberOf(space) << std::endl;
}

void SaveStateOf(const SimulatedCamera& camera, const Options& options) {
    if (!options.state.empty()) {
        SaveState(camera, options.state);
    }
}

void ServeCamera(const Options& options) {
    const IpConfiguration ip{options.address, SubnetMaskOf(options.address)};
    const auto camera = SwitchOn(options);
    Device device(*camera, ip, std::chrono::steady_clock::now());
    if (options.unpaced) {
        device.Stream().Frames().IgnoreFrameDuration();
    }
    if (options.anyDestination) {
        device.Stream().AllowAnyDestination();
    }
    DisturbedDevice disturbed(device, options.disturbances, options.seed);
    std::optional<Recorder> recorder;
    Serve(disturbed, ip, options.stream, [&] { // only now, since another camera may have address and files
        if (!options.record.empty()) {
            recorder.emplace(options.record);
        }
        SaveStateOf(*camera, options); // a file that cannot be written would be known too late at the end
        Announce(options, camera->Registers());
        return recorder ? &*recorder : nullptr;
    });
    SaveStateOf(*camera, options);
}

int Run(int argc, char** argv) {
    std::signal(SIGPIPE, SIG_IGN); // who reads the record, or the announcement, may go
    const auto end = [](Common::ExitCode code, const std::exception& error) {
        Common::PrintError("qdv12sim", error.what());
        return code;
    };
    try {
        const auto options = ParseCommandLine(argc, argv);
        if (!options) {
            return Common::FlushResults("qdv12sim", Common::Success, Common::NotOpened);
        }
        ServeCamera(*options);
        return Common::Success;
    } catch (const UsageError& error) {
        return end(Common::WrongUsage, error);
    } catch (const FaultError& error) {
        return end(Common::WrongUsage, error);
    } catch (const std::exception& error) { // of the address, the state, the record
        return end(Common::NotOpened, error);
    }
}

} // namespace

} // namespace Simulation::GigEVision

int main(int argc, char** argv) { return Simulation::GigEVision::Run(argc, argv); }
