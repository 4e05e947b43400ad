#pragma once

#include "FeatureList.h"

#include <SDK4/Records.h>

#include <string>
#include <string_view>
#include <utility>

namespace SDK4::Control {

class KStreamControl;

/// A named value that is computed from features on every read: a condition, or a bound.
template <typename T> class CComputedFeature : public IFeature, public IGetter<T> {
public:
    CComputedFeature(std::string_view featureName, CFeatureList* featureList)
        : name(featureName),
          features(featureList) {}

    std::string GetName() override { return name; }
    virtual ~CComputedFeature() = default;

protected:
    std::string name;
    CFeatureList* features; ///< not owned
};

/// A condition that features name in their condition lists.
using CPredicate = CComputedFeature<bool>;

/// Acquisition runs, so the parameters of the transport layer must not change. Does not access the camera.
class CTLParamsLocked final : public CPredicate {
public:
    CTLParamsLocked(std::string_view featureName, CFeatureList* featureList, const KStreamControl* streamControl)
        : CPredicate(featureName, featureList),
          stream(streamControl) {}
    bool GetValue() override;

private:
    const KStreamControl* stream; ///< not owned
};

/// The largest overlay position: the extent of the readout area.
class CMaxOverlayPosition final : public CComputedFeature<SDK4_KPOSITION> {
public:
    using CComputedFeature::CComputedFeature;
    SDK4_KPOSITION GetValue() override;
};

/// The colour coding is not raw.
class CIsNotColorCodingRaw final : public CPredicate {
public:
    using CPredicate::CPredicate;
    bool GetValue() override;
};

class CIsNotExposuremodeFrameOndemand final : public CPredicate {
public:
    using CPredicate::CPredicate;
    bool GetValue() override;
};

/// An automatic mode is on.
class CIsAutomaticOn final : public CPredicate {
public:
    /// @param mode the feature that switches the automatic mode
    CIsAutomaticOn(std::string_view featureName, CFeatureList* featureList, std::string_view mode)
        : CPredicate(featureName, featureList),
          watched(mode) {}
    bool GetValue() override;

private:
    std::string watched;
};

class CIsColorCamera final : public CPredicate {
public:
    using CPredicate::CPredicate;
    bool GetValue() override;
};

/// The camera has an image memory.
class CIsMemoryCamera final : public CPredicate {
public:
    using CPredicate::CPredicate;
    bool GetValue() override;
};

class CIsHistogramCamera final : public CPredicate {
public:
    using CPredicate::CPredicate;
    bool GetValue() override;
};

class CIsMonoCamera final : public CPredicate {
public:
    using CPredicate::CPredicate;
    bool GetValue() override;
};

class CIsExposureModeFreeRunning final : public CPredicate {
public:
    using CPredicate::CPredicate;
    bool GetValue() override;
};

class CIsExposureModeResetRestart final : public CPredicate {
public:
    using CPredicate::CPredicate;
    bool GetValue() override;
};

/// Adds every predicate of the control to its feature list, which owns them.
void AddPredicates(CFeatureList* features, const KStreamControl* stream);

} // namespace SDK4::Control
