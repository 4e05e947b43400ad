#pragma once

#include "Tests/Fuzz/Failures.h"
#include "Tests/Fuzz/Input.h"

#include <SDK4/IControlPort.h>

#include <cstdint>
#include <cstdlib>
#include <map>
#include <memory>
#include <vector>

namespace Fuzz {

/// A camera whose answers are determined by the input: as a camera does, with random words, wrong counts, nothing, or
/// exceptions. The port itself keeps its contract: blocks and texts have exactly their minimum size, and a text is
/// valid only until the next access.
class HostilePort final : public SDK4::IControlPort {
public:
    HostilePort(Input& script, Failures& thrown) : input(script), failures(thrown) {}

    bool opening = true; ///< while the control is created, one read may fail unnoticed by the host
    [[nodiscard]] unsigned long Accesses() const { return accesses; }

    void WriteRegister(std::uint32_t address, std::uint32_t value) override;
    std::uint32_t ReadRegister(std::uint32_t address) override;
    void WriteRegisterPair(std::uint32_t address, std::uint64_t value) override;
    std::uint64_t ReadRegisterPair(std::uint32_t address) override;
    unsigned char* ReadBlock(std::uint32_t address, std::uint32_t length) override;
    void WriteBlock(std::uint32_t address, const unsigned char* buffer, std::uint32_t length) override;
    char* ReadString(std::uint32_t address, std::uint32_t length) override;
    void WriteString(std::uint32_t address, const char* buffer, std::uint32_t length) override;
    void ReadMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) override;
    void WriteMem(std::uint32_t address, std::uint8_t* buffer, std::uint64_t* length) override;

private:
    /// How accesses are answered. A manner that does not apply to an access (a wrong count for a word) answers as a
    /// camera does.
    enum class Manner : std::uint8_t {
        Camera,   ///< the value written there, else the camera's default word
        Words,    ///< any words
        Bytes,    ///< any bytes
        Short,    ///< fewer bytes than asked for
        Nothing,  ///< a count of zero, null for a block or a text
        Overlong, ///< a count beyond what was asked for
        Silent,   ///< the count that was asked for, and no bytes
        Error,    ///< throws X4Error
        Foreign,  ///< throws another exception
        Count
    };

    struct Free {
        void operator()(void* allocated) const { std::free(allocated); }
    };

    void Begin(std::uint32_t address);
    void Fill(std::uint32_t address, void* buffer, std::size_t length);
    void Store(std::uint32_t address, const void* buffer, std::size_t length);
    template <typename T> T Read(std::uint32_t address);

    Input& input;
    Failures& failures;
    const std::uint32_t filling = input.Word();
    Manner manner = Manner::Camera;
    unsigned int left = 0; ///< remaining accesses of the manner
    unsigned long accesses = 0;
    std::map<std::uint32_t, std::vector<std::uint8_t>> memory;
    std::unique_ptr<char, Free> text; ///< the last result of ReadString
};

} // namespace Fuzz
