#pragma once

#include "facehints.h"
#include "keypadtable.h"

#include <QImage>
#include <QSize>
#include <QString>

class KeyItem;
struct KeyRenderInfo;

// Draws the 72 x 72 face a key shows on the keypad and in the editor: the
// key's image with its title, on black.
//
// Composition of a face (KeyRenderInfo of the item's current slot cfIdx):
// - Image: userImg when set, else the default image ":/image/<defImgPath>.png".
//   It keeps its aspect ratio and is centred in the room the title leaves:
//   with no title it fills the face less a 4-pixel margin; with the title
//   at the top or the bottom it shrinks into the rest of the face; with the
//   title in the vertical centre it keeps the whole face and the title is
//   laid over it on a translucent dark plate.
// - Title: text in textFont and textColor, placed by textAlign (Qt alignment
//   flags; without a vertical flag it goes to the bottom, without a
//   horizontal flag it is centred). It wraps at word boundaries into at most
//   two lines (one when two would leave the image less than 24 pixels) and
//   what does not fit ends in an ellipsis. A thin halo of the contrasting
//   shade keeps it legible on any image. Font size: see FaceTitle.
// - "Arial", the default title family, and families this machine lacks are
//   drawn with the bundled Liberation Sans (see BundledFonts).
//
// hintFlags (all bits: FaceHints): bit HintShowTitle (1, the default) shows
// the title; with it cleared the text is kept but not drawn and the image
// gets the whole face. A live kind draws the face with LiveFacePainter from
// the current SystemReadings and the time; while its figure is not known
// the static face above is drawn.
//
// Every face is drawn in ARGB32_Premultiplied, the format QPainter's raster
// engine composes and scales fastest and exactly in, and returned as
// RGBA8888: the byte order the keypad's image transfer takes (R, G, B, A in
// memory on any host). Faces are opaque, so nothing is lost by the
// conversion.
//
// All functions are safe on the GUI thread and on worker threads; they
// create no QPixmap (a user image is only converted with toImage()).
class KeyFaceRenderer
{
public:
    static constexpr int FaceSize = KeypadTable::KeyImageSize;

    enum HintFlag
    {
        HintShowTitle = FaceHints::ShowTitle,
    };

    // The face of the item's current slot; solid black for a null item or
    // one without an action (KAT_INVALID).
    static QImage render(const KeyItem* item);
    static QImage render(const KeyRenderInfo& face);

    // The face of a key held down: the face shrunk to 64 x 64 (about 90 %)
    // in the middle of the black key and darkened by a fifth, so it looks
    // pushed in. Black stays black.
    static QImage renderPressed(const KeyItem* item);
    static QImage pressedLook(const QImage& face);

    // A solid black face: an empty key.
    static QImage blankFace();

    // The default key image named name from ":/image", at its own size;
    // decoded once and cached for all threads. Null when missing (logged).
    static QImage defaultImage(const QString& name);

    // Registers the bundled title fonts and maps "Arial" onto them, once.
    // Every render calls it; call it at start-up on the GUI thread as well,
    // so the editor's own widgets see the substitution before they draw.
    static void ensureFontsLoaded();

private:
    static const KeyRenderInfo* currentFace(const KeyItem* item);
    static QImage faceImage(const KeyRenderInfo& face);
    static QImage fittedImage(const KeyRenderInfo& face, const QImage& source, const QSize& box);
};
