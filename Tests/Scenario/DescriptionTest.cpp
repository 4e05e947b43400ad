// Every function of every simulated camera, through the camera's GenICam description and through the plug-in: what is
// written the one way is read the other way.

#include "Tests/Scenario/NetworkCamera.h"

#include "Host/Camera.h"
#include "Host/Channel/GigEPort.h"
#include "Host/Plugin.h"
#include "Simulation/Cameras.h"

#include <arv.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <functional>
#include <map>
#include <set>
#include <thread>

namespace Scenario {

namespace {

using Host::Value;

/// Nodes with the standard's names.
const std::map<std::string_view, std::string> standardNodes = {
    {"verticalflip", "reversey"},        {"horizontalflip", "reversex"},
    {"username", "deviceuserid"},        {"ipconfig", "gevcurrentipconfiguration"},
    {"packetsize", "gevscpspacketsize"}, {"packetdelay", "gevscpd"},
    {"firsturl", "gevfirsturl"},         {"secondurl", "gevsecondurl"},
};
/// Functions without a node that has their value: addresses as texts, what other nodes hold, what the host computes.
const std::set<std::string_view> withoutNode = {
    "macaddress",  "ipaddress",    "subnetmask",     "gateway",        "dhcp",
    "colorcoding", "readoutarea",  "readoutareamin", "readoutareamax", "readoutareaactive",
    "softtrigger", "timeperframe", "persistentip",
};
/// Functions that cameras have and the plug-in refuses.
const std::set<std::string_view> refused = {"slowscan", "lutmode", "measurevalue", "softwarebuild", "hardwareversion"};

std::string Lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char each) { return std::tolower(each); });
    return text;
}

/// The nodes of a camera.
class Description {
public:
    explicit Description(ArvDevice& opened) : device(opened) {
        arv_device_set_range_check_policy(&device, ARV_RANGE_CHECK_POLICY_ENABLE);
        Add("Root");
    }

    /// The names of the nodes of a function, in the order of its fields; empty if it has none.
    [[nodiscard]] std::vector<std::string> NodesOf(const Host::Function& function) const {
        std::vector<std::string> found;
        const auto standard = standardNodes.find(function.name);
        const std::string name = standard == standardNodes.end() ? std::string(function.name) : standard->second;
        const Host::Field whole{};
        for (const Host::Field& field : function.shape.fields.empty() ? std::span(&whole, 1) : function.shape.fields) {
            if (const auto node = nodes.find(name + field.name); node != nodes.end()) {
                found.push_back(node->second);
            }
        }
        return found;
    }

    void Select(const Host::Instance& instance) const {
        const auto node = nodes.find(std::string(instance->name) + "selector");
        ASSERT_NE(node, nodes.end());
        Write({node->second}, {{instance.index}, ""});
    }

    [[nodiscard]] Value Read(const std::vector<std::string>& names) const {
        Value value;
        for (const std::string& name : names) {
            ArvGcNode* const node = arv_device_get_feature(&device, name.c_str());
            Call(name, [&](GError** error) {
                if (ARV_IS_GC_INTEGER(node)) {
                    value.numbers.push_back(arv_gc_integer_get_value(ARV_GC_INTEGER(node), error));
                } else if (ARV_IS_GC_BOOLEAN(node)) {
                    value.numbers.push_back(arv_gc_boolean_get_value(ARV_GC_BOOLEAN(node), error));
                } else if (ARV_IS_GC_FLOAT(node)) {
                    value.numbers.push_back(std::llround(arv_gc_float_get_value(ARV_GC_FLOAT(node), error)));
                } else if (ARV_IS_GC_STRING(node)) {
                    const char* const text = arv_gc_string_get_value(ARV_GC_STRING(node), error);
                    value.text = text == nullptr ? "" : text;
                }
            });
        }
        return value;
    }

    void Write(const std::vector<std::string>& names, const Value& value) const {
        for (std::size_t i = 0; i < names.size(); ++i) {
            ArvGcNode* const node = arv_device_get_feature(&device, names[i].c_str());
            Call(names[i], [&](GError** error) {
                if (ARV_IS_GC_INTEGER(node)) {
                    arv_gc_integer_set_value(ARV_GC_INTEGER(node), value.numbers.at(i), error);
                } else if (ARV_IS_GC_BOOLEAN(node)) {
                    arv_gc_boolean_set_value(ARV_GC_BOOLEAN(node), value.numbers.at(i) != 0, error);
                } else if (ARV_IS_GC_FLOAT(node)) {
                    arv_gc_float_set_value(ARV_GC_FLOAT(node), static_cast<double>(value.numbers.at(i)), error);
                } else {
                    arv_gc_string_set_value(ARV_GC_STRING(node), value.text.c_str(), error);
                }
            });
        }
    }

private:
    /// Adds what is below the category, and reads it.
    void Add(const std::string& name) {
        ArvGcNode* const node = arv_device_get_feature(&device, name.c_str());
        ASSERT_NE(node, nullptr) << name;
        if (ARV_IS_GC_CATEGORY(node)) {
            for (const GSList* at = arv_gc_category_get_features(ARV_GC_CATEGORY(node)); at != nullptr; at = at->next) {
                Add(static_cast<const char*>(at->data));
            }
        } else if (arv_gc_feature_node_is_implemented(ARV_GC_FEATURE_NODE(node), nullptr)) {
            EXPECT_TRUE(nodes.emplace(Lower(name), name).second) << name << " is listed twice";
            static_cast<void>(Read({name}));
        }
    }

    static void Call(const std::string& name, const std::function<void(GError**)>& call) {
        GError* error = nullptr;
        call(&error);
        EXPECT_EQ(error, nullptr) << name << ": " << error->message;
        g_clear_error(&error);
    }

    ArvDevice& device;
    std::map<std::string, std::string> nodes; ///< names by the names in lower case
};

/// Another valid value, whose fields differ.
Value Other(const Value& value, const Host::Limits& limits) {
    Value other{value.numbers, value.text + "x"};
    for (std::size_t i = 0; i < other.numbers.size(); ++i) {
        std::int64_t& number = other.numbers[i];
        if (i >= limits.size()) {
            number += 5 + static_cast<std::int64_t>(i);
        } else if (const auto& [min, max, admitted, ignored] = limits[i]; !admitted.empty()) {
            number = number == admitted.back() ? admitted.front() : admitted.back();
        } else {
            const std::int64_t high = std::max(min, max - static_cast<std::int64_t>(i));
            number = number == high ? min : high;
        }
    }
    return other;
}

/// Both ways to one camera.
class BothWays {
public:
    explicit BothWays(const std::string& name) : model(name), simulator(name), description(port.Device()) {}

    void CheckAll() const {
        for (const Host::Instance& each : Opened(*this)->All(false)) {
            const bool isLast = each->count > Host::fewInstances; // all others of it are alike
            const Host::Instance instance = isLast ? Host::Instance{each.function, each->count - 1} : each;
            SCOPED_TRACE(instance.Name());
            if (withoutNode.contains(each->name) || refused.contains(each->name)) {
                continue;
            }
            try {
                Check(instance, *Opened(*this));
            } catch (const SDK4::X4Error& error) {
                ADD_FAILURE() << "the plug-in refuses it with " << SDK4::ErrorName(error.code);
            }
        }
    }

private:
    /// The camera, opened by the plug-in without a cache. Writes of modes begin to cache other functions, so it is
    /// opened for each function.
    class Opened {
    public:
        explicit Opened(const BothWays& ways)
            : control(ways.plugin.Create(ways.model.c_str(), ways.port, 2)),
              camera(*control, ways.port, ways.model) {}
        const Host::Camera& operator*() const { return camera; }
        const Host::Camera* operator->() const { return &camera; }

    private:
        Host::Control control;
        Host::Camera camera;
    };

    void Check(const Host::Instance& instance, const Host::Camera& camera) const {
        const auto nodes = description.NodesOf(*instance.function);
        const std::size_t fields = std::max<std::size_t>(instance->shape.fields.size(), 1);
        ASSERT_EQ(nodes.size(), camera.TryRead(instance).IsImplemented() ? fields : 0) << "nodes";
        if (nodes.empty() || instance->get == nullptr) {
            return;
        }
        if (!camera.LockedBy(instance).empty()) {
            camera.Write(camera.FindOne(instance->lock->mode), {{instance->lock->open.front()}, ""});
        }
        const Value before = Agree(instance, camera, nodes, "", [](const Value&) { return true; });
        if (instance->set == nullptr) {
            return;
        }
        const Value wanted = Other(before, camera.LimitsOf(instance));
        Select(instance, camera);
        description.Write(nodes, wanted);
        Agree(instance, camera, nodes, " after the nodes wrote " + instance.Print(wanted),
              [&](const Value& value) { return !(value == before); });
        camera.Write(instance, before);
        Agree(instance, camera, nodes, " after the plug-in wrote " + instance.Print(before),
              [&](const Value& value) { return value == before; });
    }

    /// Selects the instance by its node, after the plug-in has selected another one.
    void Select(const Host::Instance& instance, const Host::Camera& camera) const {
        if (instance->count > 1) {
            static_cast<void>(camera.Read({instance.function, (instance.index + 1) % instance->count}));
            description.Select(instance);
        }
    }

    /// Waits until both ways read the same, and the value is right. Motors and lenses take time to get there.
    Value Agree(const Host::Instance& instance, const Host::Camera& camera, const std::vector<std::string>& nodes,
                const std::string& when, const std::function<bool(const Value&)>& isRight) const {
        Value byPlugin;
        Value byNodes;
        for (int i = 0; i < 50; ++i) {
            Select(instance, camera);
            byNodes = description.Read(nodes);
            byPlugin = camera.Read(instance);
            if (byPlugin == byNodes && isRight(byPlugin)) {
                return byPlugin;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        ADD_FAILURE() << nodes.front() << ": " << instance.Print(byNodes) << ", by the plug-in "
                      << instance.Print(byPlugin) << when;
        return byPlugin;
    }

    std::string model;
    NetworkCamera simulator;
    Host::Plugin plugin{QDV12_PLUGIN};
    mutable Host::GigEPort port{"192.168.1.10"};
    Description description;
};

TEST(Description, ReachesEveryFunctionThatThePluginReaches) {
    for (const std::string& model : Simulation::ModelNames()) {
        SCOPED_TRACE(model);
        BothWays(model).CheckAll();
    }
}

} // namespace

} // namespace Scenario
