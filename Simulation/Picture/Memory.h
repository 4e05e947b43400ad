#pragma once

#include "Simulation/Picture/Settings.h"

#include <cstdint>
#include <vector>

namespace Simulation::Picture {

/// The image memory of a camera. In this order:
///
/// | Step              | The frame that is sent                                                                  |
/// |-------------------|-----------------------------------------------------------------------------------------|
/// | last image hold   | the first one since it is on, again and again                                           |
/// | recursive filter  | the mean of the former ones: a new frame counts 1/2, 1/4, 1/8, 1/16                      |
/// | motion detection  | the new frame alone, where it differs from the mean by more than 1/16 of full scale     |
/// | store image       | as it is; it becomes the stored image                                                   |
/// | image subtraction | its difference from the stored image; gray, 8192, where there is none                   |
class Memory {
public:
    using Image = std::vector<std::uint16_t>;

    /// Forgets all, as frames of another size or format follow.
    void Clear() { *this = {}; }
    /// Whether anything is done with these settings. Forgets what was for a step that is off now.
    [[nodiscard]] bool IsUsed(const MemorySettings& settings);
    /// Makes the frame that is sent of the one that was taken.
    void Apply(const MemorySettings& settings, Image& image);

private:
    void Filter(const MemorySettings& settings, Image& image);
    void Subtract(Image& image) const;

    Image held;
    Image stored;
    std::vector<std::int32_t> means; ///< in 1/256
};

} // namespace Simulation::Picture
