#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>

namespace SDK4 {

/// When a register returns its cached value.
enum EnumCacheMode : int {
    CacheNone = 0,             ///< every read goes to the camera
    CacheNormal = 1,           ///< a value read or written is valid until it is invalidated
    CacheWriteInvalidates = 2, ///< as CacheNormal, but the first read after a write goes to the camera
};

/// An entry of a register list.
class IRegister {
public:
    /// Invalidates the cached value and everything that depends on it.
    virtual void Invalidate() = 0;
    virtual void SetCacheMode(EnumCacheMode mode) = 0;
    virtual EnumCacheMode GetCacheMode() = 0;
    /// Adds a register whose writes invalidate this one. Unknown names have no effect.
    virtual void AddInvalidator(std::string name) = 0;
    virtual std::set<std::string> GetInvalidatorSet() = 0;
    virtual std::string GetName() = 0;
};

/// The registers of one control, by name. Owns its entries, which are made with new; see ReleaseStorage.
class CRegisterList {
public:
    CRegisterList();
    ~CRegisterList();
    CRegisterList(const CRegisterList&) = delete;
    CRegisterList& operator=(const CRegisterList&) = delete;

    /// Adds a register. If its name is taken, the first register stays, and the list does not own @p entry.
    void AddEntry(IRegister* entry);

    /// The register of that name, or null.
    [[nodiscard]] IRegister* Find(std::string_view name) const;

    /// Invalidates, in name order, every register that has @p name as an invalidator, and in turn the registers that
    /// depend on these. The relation must be acyclic.
    void DoInvalidate(const std::string& name);

    /// Must be called when an entry of the list gets a new invalidator.
    void InvalidatorsChanged() { index.reset(); }

private:
    struct Index;

    using Entries = std::map<std::string, IRegister*, std::less<>>;

    void Walk(const std::string& name, Entries::const_iterator from);
    [[nodiscard]] std::shared_ptr<const Index> BuildIndex() const;

    Entries entries;
    std::shared_ptr<const Index> index; ///< null if out of date
};

} // namespace SDK4
