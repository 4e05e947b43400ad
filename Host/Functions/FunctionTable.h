#pragma once

#include "Host/Function.h"

#include <type_traits>
#include <typeinfo>
#include <utility>

namespace Host {

/// @throws X4Error if the control does not have the interface
template <typename Interface> Interface& InterfaceOf(IDynamicObject& control) {
    auto* const found = dynamic_cast<Interface*>(&control);
    if (found == nullptr) {
        throw SDK4::X4Error(SDK4_ERR_INVALID_INTERFACE);
    }
    return *found;
}

/// The port, for a function that no interface has.
template <typename Interface> Interface& Reach(const OpenedCamera& camera) {
    if constexpr (std::is_same_v<Interface, SDK4::IControlPort>) {
        return camera.port;
    } else {
        return InterfaceOf<Interface>(camera.control);
    }
}

/// Makes the rows of the table out of the getters and setters of the interfaces:
///
///     table.Setting<&IGain::GetGain, &IGain::SetGain>(Name::gain).Range(0, 511).MovedBy(Name::agc);
///
/// Operations with an index before the value make an indexed row. A plain function can replace an operation: unsigned
/// int Width(IDSMediaType&). It may take the port, SDK4::IControlPort&, to read what the control cannot.
class FunctionTable {
public:
    FunctionTable(Functions& rows, bool ofM2VX) : functions(rows), m2vx(ofM2VX) {}

    /// For rows of both families, where these differ.
    [[nodiscard]] bool IsM2VX() const { return m2vx; }

    /// Sets the topic of the next rows.
    void Topic(std::string_view name) { topic = name; }

    template <auto Get, auto Set> Function& Row(std::string_view name, RestorePolicy restore = RestorePolicy::Never) {
        const FunctionKind read = Operation<Get>::Kind();
        const FunctionKind kind{Operation<Set>::Kind().interface, read.shape, read.indexed, read.trigger};
        Function& function = Add(name, kind, &CallGetter<Get>, &CallSetter<Set>);
        function.restore = restore;
        return function;
    }
    // One per RestorePolicy.
    template <auto Get, auto Set> Function& Setting(std::string_view name) {
        return Row<Get, Set>(name, RestorePolicy::Setting);
    }
    template <auto Get, auto Set> Function& Mode(std::string_view name) {
        return Row<Get, Set>(name, RestorePolicy::Mode);
    }
    template <auto Get, auto Set> Function& Output(std::string_view name) {
        return Row<Get, Set>(name, RestorePolicy::Output);
    }
    template <auto Get, auto Set> Function& Network(std::string_view name) {
        return Row<Get, Set>(name, RestorePolicy::Network);
    }
    template <auto Get, auto Set> Function& Address(std::string_view name) {
        return Row<Get, Set>(name, RestorePolicy::Address);
    }
    template <auto Get> Function& ReadOnly(std::string_view name) {
        return Add(name, Operation<Get>::Kind(), &CallGetter<Get>, nullptr);
    }
    template <auto Set> Function& WriteOnly(std::string_view name) {
        return Add(name, Operation<Set>::Kind(), nullptr, &CallSetter<Set>);
    }

private:
    /// What the signature of an operation says about its function.
    struct FunctionKind {
        const std::type_info& interface;
        Shape shape;
        bool indexed = false;
        bool trigger = false;
    };

    Function& Add(std::string_view name, const FunctionKind& kind, Function::Getter get, Function::Setter set);

    /// Numbers are passed as 32-bit words, enumerations as signed ones.
    template <typename T>
    using Plain = std::conditional_t<std::is_enum_v<T> || std::is_same_v<T, bool>, std::int32_t, T>;

    template <bool isGetter, typename I, typename R, typename... A> struct Parts {
        using Interface = I;
        template <typename... P> struct Last { using Type = void; };
        template <typename P> struct Last<P> { using Type = P; };
        template <typename P, typename Q> struct Last<P, Q> { using Type = Q; };
        template <typename... P> struct First { using Type = void; };
        template <typename P, typename... Q> struct First<P, Q...> { using Type = P; };

        using Type = std::conditional_t<isGetter, R, typename Last<A...>::Type>; ///< of the value
        using Index = typename First<A...>::Type;
        static constexpr bool trigger = std::is_void_v<Type>;
        static constexpr bool indexed = sizeof...(A) == (isGetter ? 1 : 2);

        static FunctionKind Kind() {
            if constexpr (trigger) {
                return {typeid(I), ShapeOf(static_cast<const std::uint32_t*>(nullptr)), false, true};
            } else {
                return {typeid(I), ShapeOf(static_cast<const Plain<Type>*>(nullptr)), indexed, false};
            }
        }
    };
    template <typename I, typename R, typename... A>
    static Parts<!std::is_void_v<R>, I, R, A...> PartsOf(R (I::*)(A...));
    template <typename I, typename R, typename... A>
    static Parts<!std::is_void_v<R>, I, R, A...> PartsOf(R (*)(I&, A...));
    template <auto Called> using Operation = decltype(PartsOf(Called));

    template <auto Called, typename Interface, typename... Arguments>
    static auto Call(Interface& interface, Arguments... arguments) {
        if constexpr (std::is_member_function_pointer_v<decltype(Called)>) {
            return (interface.*Called)(arguments...);
        } else {
            return Called(interface, arguments...);
        }
    }

    template <typename Index> static Index IndexAs(std::uint32_t index) {
        if constexpr (std::is_same_v<Index, SDK4_KDEFECTPIXELSELECT>) {
            return {index / 2, index % 2};
        } else {
            return static_cast<Index>(index);
        }
    }

    template <auto Get> static Value CallGetter(const OpenedCamera& camera, [[maybe_unused]] std::uint32_t index) {
        using Parts = Operation<Get>;
        auto& interface = Reach<typename Parts::Interface>(camera);
        Plain<typename Parts::Type> value{};
        if constexpr (Parts::indexed) {
            value = Call<Get>(interface, IndexAs<typename Parts::Index>(index));
        } else {
            value = Call<Get>(interface);
        }
        if constexpr (std::is_same_v<decltype(value), const char*>) {
            return {{}, value == nullptr ? "" : value};
        } else if constexpr (std::is_same_v<decltype(value), std::string>) {
            return {{}, value};
        } else {
            return FromMemory(&value, ShapeOf(&value));
        }
    }

    template <auto Set>
    static void CallSetter(const OpenedCamera& camera, [[maybe_unused]] std::uint32_t index,
                           [[maybe_unused]] const Value& value) {
        using Parts = Operation<Set>;
        auto& interface = Reach<typename Parts::Interface>(camera);
        if constexpr (Parts::trigger) {
            Call<Set>(interface);
        } else {
            Plain<typename Parts::Type> plain{};
            if constexpr (std::is_same_v<decltype(plain), const char*>) {
                plain = value.text.c_str();
            } else {
                ToMemory(value, ShapeOf(&plain), &plain);
            }
            const auto argument = static_cast<typename Parts::Type>(plain);
            if constexpr (Parts::indexed) {
                Call<Set>(interface, IndexAs<typename Parts::Index>(index), argument);
            } else {
                Call<Set>(interface, argument);
            }
        }
    }

    Functions& functions;
    bool m2vx;
    std::string_view topic;
};

} // namespace Host
