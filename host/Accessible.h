#pragma once

namespace pad {

/// Has a screen reader find the pad's window as a window, with its menu in it, the status line as one, and
/// keys that belong together as a group.
/// A second call does nothing.
void installAccessibility();

} // namespace pad
