#pragma once

namespace pad {

/// Has a screen reader find the pad's window as a window, with its menu in it, and the status line as one.
/// A second call does nothing.
void installAccessibility();

} // namespace pad
