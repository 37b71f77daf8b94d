// Tells screen readers what the program's own widgets are, what they hold, and that they can be pressed. Their names
// are those that the binding gives them.
#pragma once

namespace Accessible {
/// From now on, for all widgets. More than one call does no more than one.
void install();
} // namespace Accessible
