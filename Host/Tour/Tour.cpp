#include "Tour.h"

#include "../Channel/ChannelErrors.h"
#include "../Session.h"
#include "Topics.h"

#include <algorithm>
#include <exception>
#include <map>
#include <ostream>
#include <string>
#include <string_view>

namespace Host {

namespace {

constexpr std::size_t lineWidth = 100;
constexpr std::size_t callWidth = 64;

/// The topics of a design of control; none for one that has no tour.
std::span<const Topic> TopicsOf(std::string_view classId) {
    if (classId == "Orvik") {
        return OrvikTopics();
    }
    return classId == "M2VX" ? M2VXTopics() : std::span<const Topic>();
}

std::string Describe(const Access& access, Session& session) {
    return Pad(access.operation, 17) + "  " + Hex(access.address) + "  " +
           Pad(session.Connection().RegisterAt(access.address), 25) + (access.write ? "<- " : "-> ") +
           FormatBytes(access.data) + (access.failed ? " (failed)" : "");
}

} // namespace

Tour::Tour(Session& opened, std::ostream& stream)
    : session(opened),
      control(opened.As<IDynamicObject>()),
      out(stream) {}

void Tour::Tell(const std::string& text) { remarks.emplace_back(session.Port().Count(), text); }

bool Tour::Run() {
    const std::string classId = Get<SDK4::IControl>().GetClassID();
    out << "A tour of " << session.Model() << ", " << session.Connection().Describe() << " behind the control \""
        << classId << "\".\n"
        << "Each call stands above the port accesses that it cost: -> is read from the camera, <- is written to it.\n";
    PrintOpening("Opening it");

    const auto topics = TopicsOf(classId);
    if (topics.empty()) {
        ++unexpected;
        out << "There is no tour of such a control.   <-- unexpected\n";
    }
    for (const Topic topic : topics) {
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

void Tour::Note(const std::string& text) {
    out << "\n  # ";
    for (const char character : text) {
        out << character << (character == '\n' ? "  # " : "");
    }
    out << '\n';
}

void Tour::Line(const std::string& text) { out << "  " << text << '\n'; }

Control Tour::OpenAgain(std::int32_t index) {
    Control opened = session.OpenAgain(index);
    PrintOpening("Opening it with index " + std::to_string(index));
    return opened;
}

void Tour::PrintOpening(const std::string& what) {
    const auto taken = session.Port().Take();
    accesses += static_cast<unsigned>(taken.size());
    out << "  " << what << " cost " << taken.size() << " port accesses";

    std::map<std::uint32_t, std::size_t> costs;
    for (const Access& access : taken) {
        ++costs[access.address];
    }
    const auto most =
        std::max_element(costs.begin(), costs.end(), [](const auto& a, const auto& b) { return a.second < b.second; });
    if (most != costs.end() && 2 * most->second > taken.size()) {
        const std::string name = session.Connection().RegisterAt(most->first);
        out << ", " << most->second << " of them on " << (name.empty() ? Hex(most->first) : name);
    }
    out << ".\n";
}

void Tour::Expect(std::int32_t expected, const Step& step) {
    ++steps;
    std::int32_t code = 0;
    std::string result;
    bool foreign = false;
    out.flush(); // keeps its place among the log lines on standard error
    try {
        result = step.run(step.call);
    } catch (const SDK4::X4Error& error) {
        ++refusals;
        code = error.code;
        result = "! " + std::string(SDK4::ErrorName(code));
    } catch (ChannelLost& error) {
        error.SetFunction(step.text);
        throw;
    } catch (const std::exception& error) {
        foreign = true;
        result = "! " + std::string(error.what());
    }
    out << "  " << Pad(step.text, callWidth) << "  " << result;
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
    auto remark = remarks.begin();
    const auto printRemarks = [&](std::size_t accessesBefore) {
        for (; remark != remarks.end() && remark->first <= accessesBefore; ++remark) {
            out << "      " << remark->second << '\n';
        }
    };
    for (std::size_t i = 0; i < taken.size(); ++i) {
        printRemarks(i);
        out << "      " << Describe(taken[i], session) << '\n';
    }
    printRemarks(taken.size());
    remarks.clear();
}

} // namespace Host
