#include "Tour.h"

#include "Topics.h"

#include <exception>
#include <ostream>
#include <string>

namespace Host {

namespace {

constexpr std::size_t lineWidth = 100;
constexpr std::size_t callWidth = 64;

} // namespace

bool Tour::Run() {
    out << "A tour of " << session.Model() << ", a simulated camera behind the control \""
        << Get<SDK4::IControl>().GetClassID() << "\".\n"
        << "Each call stands above the port accesses that it cost: -> is read from the camera, <- is written to it.\n";
    const auto opening = session.Port().Take();
    out << "Opening it cost " << opening.size() << " port accesses.\n";

    for (const Topic topic : OrvikTopics()) {
        RunTopic(topic);
    }

    out << '\n'
        << std::string(lineWidth, '=') << '\n'
        << steps << " calls, " << accesses << " port accesses, " << refusals << " refusals, " << unexpected
        << " surprises.\n";
    return unexpected == 0;
}

void Tour::RunTopic(Topic topic) {
    try {
        topic(*this);
    } catch (const MissingInterface&) {
        ++unexpected;
        out << "  the control does not have this interface   <-- unexpected\n";
    }
}

void Tour::Heading(const char* name, const char* about) {
    const std::string title = "== " + std::string(name) + ": " + about + " ";
    out << '\n' << title << std::string(title.size() < lineWidth ? lineWidth - title.size() : 0, '=') << '\n';
}

void Tour::Note(const char* text) { out << "\n  # " << text << '\n'; }

void Tour::RunStep(std::int32_t expected, const char* text, const std::function<std::string()>& call) {
    ++steps;
    std::int32_t code = 0;
    std::string result;
    bool foreign = false;
    out.flush(); // keeps its place among the log lines on standard error
    try {
        result = call();
    } catch (const SDK4::X4Error& error) {
        ++refusals;
        code = error.code;
        result = "! " + std::string(SDK4::ErrorName(code));
    } catch (const std::exception& error) {
        foreign = true;
        result = "! " + std::string(error.what());
    }
    out << "  " << Pad(text, callWidth) << "  " << result;
    if (foreign || code != expected) {
        ++unexpected;
        out << "   <-- unexpected, should be " << (expected == 0 ? "accepted" : SDK4::ErrorName(expected));
    }
    out << '\n';
    PrintAccesses();
}

void Tour::PrintAccesses() {
    const auto taken = session.Port().Take();
    accesses += static_cast<unsigned>(taken.size());
    if (taken.empty()) {
        out << "      (no port access)\n";
    }
    for (const Access& access : taken) {
        const auto* const entry = session.Camera().Registers().At(access.address);
        out << "      " << Pad(access.operation, 14) << "  " << Hex(access.address) << "  "
            << Pad(entry == nullptr ? "" : entry->name, 25) << (access.write ? "<- " : "-> ")
            << FormatBytes(access.data) << (access.failed ? " (failed)" : "") << '\n';
    }
}

} // namespace Host
