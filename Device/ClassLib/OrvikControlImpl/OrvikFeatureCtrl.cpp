#include "OrvikControlImpl/OrvikFeatureCtrl.h"

#include "Log.h"
#include "OrvikControlImpl/Predicates.h"

#include <memory>

namespace SDK4::Control {

COrvikFeatureCtrl::COrvikFeatureCtrl(CFeatureList* featureList, CRegisterList* registerList, IControlPort* controlPort,
                                     std::int32_t cameraIndex, const char* model, const char* id)
    : COrvikFeatureCtrl(featureList, registerList, controlPort, cameraIndex == uncachedIndex, cameraIndex, model, id) {}

// clang-format off
COrvikFeatureCtrl::COrvikFeatureCtrl(CFeatureList* featureList, CRegisterList* registerList,
                                     IControlPort* controlPort, bool noCache, std::int32_t cameraIndex,
                                     const char* model, const char* id)
    : KStreamControl     (featureList, registerList, controlPort, noCache),
      KGigEVisionPort    (controlPort),
      KGigECamera        (controlPort),
      KGain              (featureList, registerList, controlPort, noCache),
      KSignalFormat      (featureList, registerList, controlPort, noCache, model),
      KSlowScan          (featureList, registerList, controlPort, noCache, model),
      KTiming            (featureList, registerList, controlPort, noCache),
      KDigitalEnhancement(featureList, registerList, controlPort, noCache),
      KColor             (featureList, registerList, controlPort, noCache, model),
      KOverlay           (featureList, registerList, controlPort, noCache),
      KGufi              (featureList, registerList, controlPort, noCache),
      KExposure          (featureList, registerList, controlPort, noCache),
      KRoa               (featureList, registerList, controlPort, noCache),
      KSignalAnalysis    (featureList, registerList, controlPort, noCache),
      KInternalTests     (featureList, registerList, controlPort, noCache, model),
      KBasicSettings     (featureList, registerList, controlPort, noCache),
      KBinning           (featureList, registerList, controlPort, noCache, model),
      KLookupTable       (featureList, registerList, controlPort, noCache),
      KTrigger           (featureList, registerList, controlPort, noCache),
      KMemory            (featureList, registerList, controlPort, noCache, model),
      KGPIO              (featureList, registerList, controlPort, noCache),
      classId(id), modelName(model), mediaType(nullptr), index(cameraIndex), port(controlPort),
      features(featureList), registers(registerList) {
    // clang-format on
    SDK4_LOG(Info, "Call " << modelName);
    auto frame = std::make_unique<CQDV12VideoFrame>(dynamic_cast<ITiming*>(this), dynamic_cast<ISignalFormat*>(this));
    AddPredicates(features, this);
    mediaType = frame.release();
}

COrvikFeatureCtrl::~COrvikFeatureCtrl() {
    SDK4_LOG(Info, "Call");
    SDK4_LOG(Debug, "delete FeatureList");
    delete features;
    SDK4_LOG(Debug, "delete RegisterList");
    delete registers;
}

void COrvikFeatureCtrl::Release() {
    SDK4_LOG(Info, "dtor COrvik2FeatureCtrl");
    delete this;
}

const char* COrvikFeatureCtrl::GetClassID() {
    SDK4_LOG_CALL();
    return classId;
}

} // namespace SDK4::Control
