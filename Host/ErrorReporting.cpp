#include "Host/ErrorReporting.h"

#include "Host/Channel/ChannelErrors.h"
#include "Host/Command.h"

#include "Simulation/PortError.h"

#include <SDK4/X4Error.h>

#include <exception>
#include <string>

namespace Host {

int RunAndReport(const std::function<int()>& action, int failed) {
    try {
        return action();
    } catch (const UsageError& error) {
        PrintError(error.what());
        return WrongUsage;
    } catch (const OpenError& error) {
        PrintError(error.what());
        return NotOpened;
    } catch (const SDK4::X4Error& error) {
        PrintError(std::string(SDK4::ErrorName(error.code)) + " (" + std::to_string(error.code) + ")");
        return failed;
    } catch (const ControlHeld& error) {
        PrintError(error.Describe());
        return NotOpened;
    } catch (const Ending&) {
        return failed;
    } catch (const ChannelError& error) {
        PrintError(error.Describe());
        return failed;
    } catch (const std::exception& error) { // for example of a simulated camera
        PrintError(error.what());
        return failed;
    }
}

Outcome Attempt(const std::function<void()>& calls) {
    try {
        calls();
        return {};
    } catch (const SDK4::X4Error& error) {
        return {error.code, SDK4::ErrorName(error.code), Cause::Any};
    } catch (const ChannelLost&) {
        throw;
    } catch (const NoSuchAddress& error) {
        return {SDK4_ERR_ERROR, error.what(), Cause::NoSuchAddress};
    } catch (const Simulation::InvalidAddressError& error) {
        return {SDK4_ERR_ERROR, error.what(), Cause::NoSuchAddress};
    } catch (const ControlHeld&) { // the controller is reported once, at the end of the command
        return {SDK4_ERR_ERROR, "needs control", Cause::NoControl};
    } catch (const std::exception& error) {
        return {SDK4_ERR_ERROR, error.what(), Cause::Any};
    }
}

} // namespace Host
