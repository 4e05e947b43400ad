#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>

namespace SDK4 {

/// When a register answers from its cache.
enum EnumCacheMode : int {
    CacheNone = 0,             ///< every read goes to the camera
    CacheNormal = 1,           ///< a value read or written is served until something invalidates it
    CacheWriteInvalidates = 2, ///< as CacheNormal, but after a write the camera is asked what it made of the value
};

/// A camera register as its list sees it.
class IRegister {
public:
    /// Marks the cached value stale, and everything that depends on it.
    virtual void Invalidate() = 0;
    virtual void SetCacheMode(EnumCacheMode mode) = 0;
    virtual EnumCacheMode GetCacheMode() = 0;
    /// Names a register whose writes make this one stale. A name that no register has never fires.
    virtual void AddInvalidator(std::string name) = 0;
    virtual std::set<std::string> GetInvalidatorSet() = 0;
    virtual std::string GetName() = 0;
};

/// The registers of one control, by name. Owns its entries: they are made with new, and their storage goes with the
/// list.
class CRegisterList {
public:
    CRegisterList();
    ~CRegisterList();
    CRegisterList(const CRegisterList&) = delete;
    CRegisterList& operator=(const CRegisterList&) = delete;

    /// Enters a register under its name. A name that is taken keeps its first register; the list then does not own
    /// @p entry.
    void AddEntry(IRegister* entry);

    /// The register of that name, or null.
    [[nodiscard]] IRegister* Find(std::string_view name) const;

    /// Invalidates, in name order, every register that names @p name as an invalidator. Since each of them asks again
    /// with its own name, the cascade follows the relation to its end; the relation must be acyclic.
    void DoInvalidate(const std::string& name);

    /// To be called when an entry of the list has a new invalidator.
    void InvalidatorsChanged() { index.reset(); }

private:
    struct Index;

    using Entries = std::map<std::string, IRegister*, std::less<>>;

    void Walk(const std::string& name, Entries::const_iterator from);
    [[nodiscard]] std::shared_ptr<const Index> BuildIndex() const;

    Entries entries;
    std::shared_ptr<const Index> index; ///< null when it is stale
};

} // namespace SDK4
