#pragma once

class QWidget;

/// What a screen reader gets of the platform's controls, where the toolkit's own answers say too little.
namespace accessible {

/// Has the toolkit ask for them. Whoever makes such a control calls it; a second call does nothing, and
/// what a host has installed stays.
void installControls();

/// Has a message read out that comes up unasked and takes no focus: the widget's name is what it says.
void announce(QWidget& message);
/// The message is gone: the reader goes back to where it was.
void endAnnouncement();

} // namespace accessible
