#pragma once

#include <QString>

class QImage;

namespace ImageCompare {

// Mean difference per channel, 0..255, with b scaled to a's size. Key images
// that went through the keypad's encoding come back near the render, never
// equal, so tests compare against a bound.
double meanDifference(const QImage& a, const QImage& b);

// The largest difference of one channel (alpha included) at one pixel,
// 0..255, of two images of the same size; 256 when the sizes differ.
// Golden images are compared with it: a face drawn the same on another
// build differs only by antialiasing.
int largestChannelDelta(const QImage& a, const QImage& b);

// Where a test keeps its renders for a person to look at, next to the test.
QString renderDirectory();

} // namespace ImageCompare
