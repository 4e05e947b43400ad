#include "Benchmarks/Peer.h"

#include <arv.h>

#include <stdexcept>
#include <string>
#include <type_traits>

namespace Bench {

namespace {

constexpr const char* plainFeature = "GainRaw"; // the cheapest: one register, constant limits
constexpr const char* boundedFeature = "Width"; // its maximum is another feature
constexpr guint32 gainRegister = 0x110;

/// Calls a function whose last argument receives an error, and throws on an error.
template <typename Function, typename... Arguments> auto Call(Function function, Arguments... arguments) {
    GError* error = nullptr;
    const auto require = [&error] {
        if (error != nullptr) {
            throw std::runtime_error(std::string("Aravis: ") + error->message);
        }
    };
    if constexpr (std::is_void_v<decltype(function(arguments..., &error))>) {
        function(arguments..., &error);
        require();
    } else {
        auto result = function(arguments..., &error);
        require();
        return result;
    }
}

gint64 Get(ArvDevice* device, const char* feature) {
    return Call(arv_device_get_integer_feature_value, device, feature);
}

void Set(ArvDevice* device, const char* feature, gint64 value) {
    Call(arv_device_set_integer_feature_value, device, feature, value);
}

/// The cache works if it hides a change made without Aravis.
void RequireCache(ArvDevice* device) {
    ArvFakeCamera* camera = arv_fake_device_get_fake_camera(ARV_FAKE_DEVICE(device));
    Set(device, plainFeature, 3);
    Get(device, plainFeature);
    arv_fake_camera_write_register(camera, gainRegister, 7);
    if (Get(device, plainFeature) != 3) {
        throw std::runtime_error("Aravis does not answer from its register cache");
    }
    arv_fake_camera_write_register(camera, gainRegister, 3);
}

void RequireRangeCheck(ArvDevice* device) {
    GError* error = nullptr;
    arv_device_set_integer_feature_value(device, plainFeature, 11, &error);
    if (error == nullptr) {
        throw std::runtime_error("Aravis does not check the range");
    }
    g_error_free(error);
}

} // namespace

void AddPeer(Table& table) {
    ArvDevice* device = Call(arv_fake_device_new, "benchmark");
    arv_device_set_register_cache_policy(device, ARV_REGISTER_CACHE_POLICY_ENABLE);
    arv_device_set_range_check_policy(device, ARV_RANGE_CHECK_POLICY_ENABLE);
    RequireCache(device);
    RequireRangeCheck(device);

    auto* node = ARV_GC_INTEGER(arv_device_get_feature(device, plainFeature));
    const gint64 width = Get(device, boundedFeature);
    table.Add({peerRead}, [=] { Get(device, plainFeature); });
    table.Add({peerWrite}, [=] { Set(device, plainFeature, 5); });
    table.Add({"Aravis: cached integer read, its node held"}, [=] { Call(arv_gc_integer_get_value, node); });
    table.Add({"Aravis: range-checked integer write, its node held"},
              [=] { Call(arv_gc_integer_set_value, node, gint64{5}); });
    table.Add({"Aravis: range-checked integer write, one limit from another feature"},
              [=] { Set(device, boundedFeature, width); });
}

} // namespace Bench
