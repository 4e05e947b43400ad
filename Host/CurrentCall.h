#pragma once

#include <string>
#include <utility>

namespace Host {

/// Names the call of the plug-in that is made as long as it exists, for those who look at port accesses.
class CurrentCall {
public:
    explicit CurrentCall(std::string text) : before(std::exchange(name, std::move(text))) {}
    ~CurrentCall() { name = std::move(before); }
    CurrentCall(const CurrentCall&) = delete;
    CurrentCall& operator=(const CurrentCall&) = delete;

    /// "set gain", or empty.
    [[nodiscard]] static const std::string& Name() { return name; }

private:
    inline static thread_local std::string name;
    std::string before;
};

} // namespace Host
