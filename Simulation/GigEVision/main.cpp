#include "Simulation/CameraState.h"
#include "Simulation/Cameras.h"
#include "Simulation/GigEVision/CommandLine.h"
#include "Simulation/GigEVision/Network.h"
#include "Simulation/GigEVision/Server.h"
#include "Simulation/Identity.h"
#include "Simulation/Suggestion.h"

#include <csignal>
#include <cstdio>
#include <iostream>
#include <memory>

namespace Simulation::GigEVision {

namespace {

enum ExitCode { AllWell = 0, WrongUsage = 2, NotServed = 3 };

std::string AddressText(std::uint32_t address) { return asio::ip::address_v4(address).to_string(); }

/// Gives the camera the identity that was asked for, whatever the state file says.
void Name(RegisterSpace& space, const Order& order) {
    const char* option = "--serial: ";
    try {
        if (order.serial) {
            space.Load(SerialNumberRegisters(space, *order.serial));
        }
        option = "--mac: ";
        if (order.mac) {
            space.Load(MacAddressRegisters(*order.mac));
        }
    } catch (const IdentityError& error) {
        throw UsageError(option + std::string(error.what()));
    }
}

std::unique_ptr<SimulatedCamera> SwitchOn(const Order& order) {
    auto camera = MakeCamera(order.model, {.seed = order.seed});
    if (!camera) {
        throw UsageError("unknown model \"" + order.model + '"' + Suggestion(order.model, ModelNames()) +
                         " (qdv12sim --help lists them)");
    }
    if (HasState(order.state)) {
        LoadState(*camera, order.state);
    }
    Name(camera->Registers(), order);
    for (const std::string& fault : order.faults) {
        camera->InjectFault(fault);
    }
    return camera;
}

/// Tells those who wait for it that the camera can be reached.
void Announce(const Order& order, const RegisterSpace& space) {
    std::cout << order.model << " at " << AddressText(order.address) << ':' << port << ", MAC " << MacAddressOf(space)
              << ", serial number " << SerialNumberOf(space) << std::endl;
}

void Keep(const Order& order, const SimulatedCamera& camera) {
    if (!order.state.empty()) {
        SaveState(camera, order.state);
    }
}

void Serve(const Order& order) {
    const Network network{order.address, MaskOf(order.address)};
    const auto camera = SwitchOn(order);
    Device device(*camera, network, std::chrono::steady_clock::now());
    DisturbedDevice disturbed(device, order.disturbances, order.seed);
    Server server(disturbed, network);
    std::optional<Recorder> recorder; // after the server, which may find that another camera has address and file
    if (!order.record.empty()) {
        recorder.emplace(order.record);
        server.RecordTo(*recorder);
    }
    Keep(order, *camera); // now, since a file that cannot be written would be known too late at the end
    Announce(order, camera->Registers());
    try {
        server.Run();
    } catch (const RecordError&) { // the disk is full, for one, which does not end the camera's memory
        Keep(order, *camera);
        throw;
    }
    Keep(order, *camera);
}

int PrintError(ExitCode code, const std::string& text) {
    std::cerr << "qdv12sim: " << text << '\n';
    return code;
}

int Run(int argc, char** argv) {
    std::signal(SIGPIPE, SIG_IGN); // who reads the record, or the announcement, may go
    std::optional<Order> order;
    try {
        order = ParseCommandLine(argc, argv);
        if (order) {
            Serve(*order);
        }
        return AllWell;
    } catch (const UsageError& error) {
        return PrintError(WrongUsage, error.what());
    } catch (const FaultError& error) {
        return PrintError(WrongUsage, error.what());
    } catch (const asio::system_error& error) {
        return PrintError(NotServed, AddressText(order->address) + ':' + std::to_string(port) +
                                         " cannot be used: " + error.code().message());
    } catch (const std::exception& error) { // the state, the record
        return PrintError(NotServed, error.what());
    }
}

} // namespace

} // namespace Simulation::GigEVision

int main(int argc, char** argv) { return Simulation::GigEVision::Run(argc, argv); }
