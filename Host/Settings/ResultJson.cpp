#include "Host/Settings/ResultJson.h"

#include "Host/Describe.h"

namespace Host {

Json ToJson(const RestoreResult& result) {
    const auto json = [&](const std::optional<Value>& value) {
        return value ? ToJson(result.instance, *value) : Json();
    };
    Json document{{"name", result.instance.Name()},
                  {"result", NameOf(result.status)},
                  {"saved", ToJson(result.instance, result.saved)},
                  {"before", json(result.before)},
                  {"value", json(result.held)},
                  {"reason", TextOrNull(result.reason)}};
    AddLock(document, result.lock);
    return document;
}

Json ToJson(const Difference& difference) {
    const auto json = [&](const Value* value) {
        return value == nullptr ? Json() : ToJson(difference.instance, *value);
    };
    return Json{
        {"name", difference.instance.Name()}, {"first", json(difference.first)}, {"second", json(difference.second)}};
}

} // namespace Host
