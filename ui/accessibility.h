#pragma once

// Makes the editor's self-drawn buttons known to assistive technology: the
// keys of the grid and the palette's entries (through their ButtonOwner), the
// ClickLabels of title bars and the clear buttons of line edits. Safe to call more than once; the widgets
// that need it call it when they are made.
namespace Accessibility {

void install();

} // namespace Accessibility
