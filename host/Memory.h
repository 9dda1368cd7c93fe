#pragma once

/// What makes a program for small devices hold no more memory than it uses.
namespace pad::memory {

/// Freed pictures go back to the system at once. Call it first of all.
void keepNoPictures();
/// Limits what Qt keeps of icons to what a window of this scale shows; without a limit of ours the kept
/// ones grow for hours. Call it once, after the application object exists.
void limitIcons(int scale);

} // namespace pad::memory
