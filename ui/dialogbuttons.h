#pragma once

class QDialogButtonBox;

namespace DialogButtons {

// Gives a button box's standard buttons the program's own words (OK,
// Cancel, Reset, Yes, No), so they read in the user's language without Qt's
// own translations installed, and as in the program's message dialog.
void useOwnTexts(QDialogButtonBox* box);

} // namespace DialogButtons
