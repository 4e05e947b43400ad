#include "FeatureList.h"

#include "ReleaseStorage.h"

#include <algorithm>

namespace SDK4 {

CFeatureList::CFeatureList() { SDK4_LOG(Debug, "ctor CFeatureList"); }

CFeatureList::~CFeatureList() {
    SDK4_LOG(Debug, "dtor CFeatureList");
    for (const auto& [name, entry] : entries) {
        ReleaseStorage(entry.feature);
    }
}

void CFeatureList::AddEntry(IFeature* entry) {
    if (!entries.try_emplace(entry->GetName(), Entry{entry}).second) {
        SDK4_LOG(Info, entry->GetName() << " Entry already present");
    }
}

bool CFeatureList::AllHold(const std::vector<std::string>& conditions) const {
    return std::all_of(conditions.begin(), conditions.end(), [this](const std::string& name) {
        auto* condition = Find<IGetter<bool>>(name);
        return condition == nullptr || condition->GetValue();
    });
}

bool CFeatureList::AnyHolds(const std::vector<std::string>& conditions) const {
    return std::any_of(conditions.begin(), conditions.end(), [this](const std::string& name) {
        auto* condition = Find<IGetter<bool>>(name);
        return condition != nullptr && condition->GetValue();
    });
}

} // namespace SDK4
