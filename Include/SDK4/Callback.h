#pragma once

namespace SDK4::Control {

/// Tells an observer what changed on a property. It runs inside the call that changes the property, after the change.
/// It may call back into the control; an exception that it throws passes through that call and leaves the change;
/// what the call had still to do is left undone: further fields of a record, enabled flags of dependent properties.
/// @param name the property's full name
/// @param attribute "minimum", "maximum", "value", "enabled" or "implemented"
/// @param context what the observer was registered with
using SDK4_CALLBACK = void (*)(const char* name, const char* attribute, void* context);

} // namespace SDK4::Control
