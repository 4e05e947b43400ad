#include "Host/Panel/Panel.h"
#include "Common/Number.h"
#include "Host/Commands/Commands.h"
#include "Host/Interrupts.h"

#include <iostream>

namespace Host {

namespace {

constexpr std::chrono::milliseconds tick{200}; ///< in which overdue requests are noticed

/// @return the value of --port; 0, any port, by default
std::uint16_t PanelPort(const Invocation& invocation) {
    const std::string text = invocation.Text(Parameter::Port);
    const auto port = Common::ParseWhole<std::uint16_t>(text);
    if (invocation.Has(Parameter::Port) && port.value_or(0) == 0) {
        throw UsageError("invalid port \"" + text + '"');
    }
    return port.value_or(0);
}

} // namespace

int ServePanel(const Invocation& invocation) {
    const std::uint16_t wanted = PanelPort(invocation);
    const Interrupts interrupts;
    const IgnoredPipeSignal pipes;
    Program& program = invocation.Program();
    const std::string token = Panel::MakeToken();
    Panel::Panel panel(program.LoadedPlugin(), invocation.Text(Parameter::Camera), program.Options().camera, wanted,
                       token);
    const std::string address = "127.0.0.1:" + std::to_string(panel.Port());
    Output output = invocation.Output();
    output.Add("http://" + address + "/#token=" + token, "address", "http://" + address + '/');
    output.Add("from elsewhere: ssh -L " + std::to_string(panel.Port()) + ':' + address + " HOST", "token", token);
    output.End();
    std::cout.flush(); // a script reads the address
    while (!Interrupts::Received()) {
        Interrupts::Sleep(tick);
        panel.Tick();
    }
    panel.End();
    return Success;
}

} // namespace Host
