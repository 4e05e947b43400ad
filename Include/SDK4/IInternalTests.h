#pragma once

#include <SDK4/Enums.h>
#include <SDK4/Export.h>

namespace SDK4::Control {

/// Test pictures and temperatures.
class SDK4_PUBLIC IInternalTests {
public:
    /// The test picture that replaces the image. Register 0x5A010000. Orvik: a settings load does not refresh it.
    /// @throws SDK4_ERR_NOT_IMPLEMENTED (M2VX) always.
    virtual SDK4_ENUM_PATTERN GetPatternGenerator() = 0;

    /// Chooses the test picture, 0 is none: 0 to 3 on a monochrome model, 0 or 1 on a colour model (a "C" in its name).
    /// @throws SDK4_ERR_INVALID_PARAMETER for any other picture; nothing is written.
    /// @throws SDK4_ERR_NOT_IMPLEMENTED (M2VX) always.
    virtual void SetPatternGenerator(int pattern) = 0;

    /// One of the two test patterns; a code of the camera. Register 0x5A010000, indexed.
    /// @throws SDK4_ERR_NOT_IMPLEMENTED (Orvik) always.
    /// @throws SDK4_ERR_INVALID_PARAMETER (M2VX) for an index above 1, before any access.
    virtual unsigned int GetTestPattern(unsigned int index) = 0;

    /// Chooses a test pattern, 0 to 6, for index 0 or 1.
    /// @throws SDK4_ERR_NOT_IMPLEMENTED (Orvik) always.
    /// @throws SDK4_ERR_INVALID_PARAMETER (M2VX) for an index above 1, before any access.
    /// @throws SDK4_ERR_OUTOFRANGE (M2VX) for any other pattern; nothing is written.
    virtual void SetTestPattern(unsigned int index, unsigned int pattern) = 0;

    /// Temperature of the board in degrees Celsius. Register 0x5A030000.
    /// @throws SDK4_ERR_NOT_IMPLEMENTED (Orvik) always; its board is sensor 0 of GetTemperature.
    virtual int GetTemperaturePCB() = 0;

    /// Temperature in degrees Celsius, never cached. Register 0x5A030000. Orvik has sensor 0; M2VX returns the board's
    /// temperature for every number.
    /// @throws SDK4_ERR_INVALID_PARAMETER (Orvik) for any other sensor, before any access.
    virtual int GetTemperature(int sensor) = 0;
};

} // namespace SDK4::Control
