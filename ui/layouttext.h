#pragma once

#include <QString>

// How a layout is named to the user.
namespace LayoutText {

// "15 keys, vertical"; empty for an invalid layout.
QString describe(int layout);
// Held with more rows than columns.
bool isVertical(int layout);
// "6 keys", "15 keys", "32 keys".
QString keys(int keyCount);

} // namespace LayoutText
