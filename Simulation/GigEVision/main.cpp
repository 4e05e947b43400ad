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

/// The mask of this machine's subnet that contains the address, or a mask of that address alone.
std::uint32_t SubnetMaskOf(std::uint32_t address) {
    std::uint32_t found = 0;
    for (const Common::NetworkInterface& each : Common::NetworkInterfaces()) {
        if (each.address == address) {
            return each.subnetMask;
        }
        if (((each.address ^ address) & each.subnetMask) == 0) { // such as 127.0.0.2, which no interface lists
            found = std::max(found, each.subnetMask);
        }
    }
    return found == 0 ? 0xFFFFFFFF : found;
}

/// Applies --serial and --mac, which override the state file.
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
                         " (see qdv12sim --help)");
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

/// Prints that the camera is ready at an address. Scripts wait for this line.
void Announce(const std::string& model, const IpConfiguration& ip, const std::string& identity) {
    std::cout << model << " at " << Common::PrintAddress(ip.address) << ':' << Common::Gvcp::port << identity
              << std::endl;
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
    const RegisterSpace& space = camera->Registers();
    const std::string identity = ", MAC " + MacAddressOf(space) + ", serial number " + SerialNumberOf(space);
    const auto announce = [&](const IpConfiguration& at) { Announce(options.model, at, identity); };
    DisturbedDevice disturbed(device, options.disturbances, options.seed);
    std::optional<Recorder> recorder;
    const auto begin = [&] { // files only once the address is bound: another instance may use them
        if (!options.record.empty()) {
            recorder.emplace(options.record);
        }
        SaveStateOf(*camera, options); // reports an unwritable file now rather than at the end
        announce(ip);
        return recorder ? &*recorder : nullptr;
    };
    Serve(disturbed, ip, options.stream, begin, announce);
    SaveStateOf(*camera, options);
}

int Run(int argc, char** argv) {
    std::signal(SIGPIPE, SIG_IGN); // a reader of the recording or of the output may exit
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
    } catch (const std::exception& error) { // address, state file, recording
        return end(Common::NotOpened, error);
    }
}

} // namespace

} // namespace Simulation::GigEVision

int main(int argc, char** argv) { return Simulation::GigEVision::Run(argc, argv); }
