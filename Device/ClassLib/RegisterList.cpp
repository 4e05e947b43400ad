#include "RegisterList.h"

#include "Log.h"
#include "Register.h"
#include "ReleaseStorage.h"

#include <unordered_map>
#include <vector>

namespace SDK4 {

/// The dependants of each name, in name order, so that a cascade need not search every register.
struct CRegisterList::Index {
    std::unordered_map<std::string, std::vector<IRegister*>> dependants;

    /// Only a CRegisterBase reports new invalidators. With any other entry in the list, every walk searches all of
    /// them.
    bool complete = true;
};

CRegisterList::CRegisterList() { SDK4_LOG(Debug, "ctor CRegisterList"); }

CRegisterList::~CRegisterList() {
    SDK4_LOG(Debug, "dtor CRegisterList");
    for (const auto& [name, entry] : entries) {
        ReleaseStorage(entry);
    }
}

void CRegisterList::AddEntry(IRegister* entry) {
    entries.emplace(entry->GetName(), entry);
    index.reset();
}

IRegister* CRegisterList::Find(std::string_view name) const {
    const auto found = entries.find(name);
    return found == entries.end() ? nullptr : found->second;
}

void CRegisterList::DoInvalidate(const std::string& name) {
    SDK4_LOG(Debug, "DoInvalidate  " << name);
    if (!index) {
        index = BuildIndex();
    }
    const std::shared_ptr<const Index> current = index; // kept during the walk, which may reset `index`
    if (!current->complete) {
        Walk(name, entries.begin());
        return;
    }
    const auto found = current->dependants.find(name);
    if (found == current->dependants.end()) {
        return;
    }
    for (IRegister* dependant : found->second) {
        dependant->Invalidate();
        if (index != current) { // a handler added a register or an invalidator
            Walk(name, entries.upper_bound(dependant->GetName()));
            return;
        }
    }
}

void CRegisterList::Walk(const std::string& name, Entries::const_iterator from) {
    for (; from != entries.end(); ++from) {
        if (from->second->GetInvalidatorSet().contains(name)) {
            from->second->Invalidate();
        }
    }
}

std::shared_ptr<const CRegisterList::Index> CRegisterList::BuildIndex() const {
    auto built = std::make_shared<Index>();
    for (const auto& [entryName, entry] : entries) {
        built->complete = built->complete && dynamic_cast<CRegisterBase*>(entry) != nullptr;
        for (const std::string& invalidator : entry->GetInvalidatorSet()) {
            built->dependants[invalidator].push_back(entry);
        }
    }
    return built;
}

} // namespace SDK4
