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

/// A camera that answers as the input says: like a camera, with any words, with wrong counts, with nothing, with
/// exceptions. The port itself keeps the contract: blocks and texts are exactly as large as they must be, and a text
/// is gone with the next access.
class HostilePort final : public SDK4::IControlPort {
public:
    HostilePort(Input& script, Failures& thrown) : input(script), failures(thrown) {}

    bool opening = true; ///< while the control is built one read may fail without the host hearing of it
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
    /// How accesses are answered. Where a kind means nothing for an access (a count that is wrong, of a word), it
    /// answers like a camera.
    enum class Manner : std::uint8_t {
        Camera,   ///< what was written there, elsewhere the word that fills the camera
        Words,    ///< any words
        Bytes,    ///< any bytes
        Short,    ///< fewer bytes than asked for
        Nothing,  ///< a count of zero, null for a block or a text
        Overlong, ///< a count beyond what was asked for
        Silent,   ///< the count that was asked for, and no bytes
        Error,    ///< throws an X4Error
        Foreign,  ///< throws anything else
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
    unsigned int left = 0; ///< accesses that the manner still lasts
    unsigned long accesses = 0;
    std::map<std::uint32_t, std::vector<std::uint8_t>> memory;
    std::unique_ptr<char, Free> text; ///< what ReadString returned last
};

} // namespace Fuzz
