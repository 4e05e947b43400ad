#pragma once

#include <cstdint>
#include <vector>

namespace Simulation {

/// A name for a code of a register.
struct CodeName {
    std::uint32_t code;
    const char* name;
};

/// What a register holds.
struct FeatureKind {
    enum class Kind {
        Number,  ///< a number, a code with a name, or several of them
        Switch,  ///< on or off
        Request, ///< a number that has an effect when it is written
        Command, ///< any write has the effect
        Text,    ///< bytes; in a function, behind their number
    };
    Kind kind = Kind::Number;
    std::vector<const char*> fields = {}; ///< a node for each word; the names follow the node's
    std::vector<CodeName> names = {};     ///< of the codes, of which a camera may have some
};

/// A function of the cameras in their GenICam descriptions. Access, limits and instances are those of the register.
///
/// The standard's features are in the folder Descriptions, and so are the functions that equal one of them: gain,
/// colorcoding (PixelFormat), binning, verticalflip and horizontalflip (ReverseY, ReverseX), readoutarea (Width,
/// Height, OffsetX, OffsetY), softtrigger (TriggerSoftware).
///
/// The descriptions do not have:
/// - functions that the model lacks;
/// - afe: calibration of the front end, without a name for each number;
/// - device: chosen by three words, more than the number of a node holds;
/// - ccdcontrol, com, updatefile and updatestatus: protocols of the manufacturer's programs;
/// - what belongs to the channels of the standard.
struct Feature {
    const char* registerName = nullptr;
    const char* node = nullptr;
    const char* category = nullptr;
    const char* toolTip = nullptr;
    FeatureKind kind = {};
};

/// The functions of both families. A family has those whose register it has, with as many words.
[[nodiscard]] const std::vector<Feature>& Features();

} // namespace Simulation
