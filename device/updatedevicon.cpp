#include "updatedevicon.h"

#include "buttonlayoutconfig.h"
#include "hid_comm.h"
#include "keyfacerenderer.h"
#include "keyitem.h"
#include "keyitemmodel.h"
#include "logging.h"
#include "objectregistry.h"

namespace {
// Reused by every full update; only the GUI thread runs one.
QImage keyImages[Hid_Comm::MaxKeys];
int positionToItem[Hid_Comm::MaxKeys];

void refreshPositionTable(const KeyItemModel* model)
{
    for (int position = 0; position < Hid_Comm::MaxKeys; ++position)
        positionToItem[position] = model->keyIndexEntry(position).position;
}

QImage keyImageAt(const QList<KeyItem*>& list, int position)
{
    const int index = positionToItem[position];
    if (index < 0 || index >= list.size())
        return KeyFaceRenderer::blankFace();
    const KeyItem* item = list.at(index);
    if (!item) {
        LOG_MSG(QStringLiteral("get null ptr!"));
        return KeyFaceRenderer::blankFace();
    }
    return KeyFaceRenderer::render(item);
}
} // namespace

bool UpdateDevIcon::updateAllIcon()
{
    auto* model = COMPONENT(KeyItemModel, ComponentId::KeyItemModel);
    auto* hid = COMPONENT(Hid_Comm, ComponentId::HidComm);
    auto* layouts = COMPONENT(ButtonLayoutConfig, ComponentId::ButtonLayoutConfig);
    if (!model || !hid || !layouts)
        return false;
    const int layout = layouts->currentLayout();
    if (!ButtonLayoutConfig::isValidLayout(layout)) {
        LOG_MSG(QStringLiteral("layoutType out of range!!!"));
        return false;
    }
    const int count = ButtonLayoutConfig::keyCount(layout);
    const QList<KeyItem*>* list = model->getCurrentLayoutListHead();
    if (!list) {
        LOG_MSG(QStringLiteral("list is invalid!"));
        return false;
    }
    refreshPositionTable(model);
    const QSize keySize(Hid_Comm::KeyImageSize, Hid_Comm::KeyImageSize);
    // Prepared from the last key down; sending goes upward.
    for (int position = count - 1; position >= 0; --position) {
        QImage image = keyImageAt(*list, position);
        if (image.size() != keySize)
            image = image.scaled(keySize, Qt::IgnoreAspectRatio, Qt::FastTransformation);
        keyImages[position] = Hid_Comm::orientForLayout(image, layout);
    }
    return hid->sendIconArray(keyImages);
}

bool UpdateDevIcon::updateKeyIcon(const KeyItem* keyItem)
{
    LOG_MSG(QStringLiteral("start"));
    auto* hid = COMPONENT(Hid_Comm, ComponentId::HidComm);
    if (!hid)
        return false;
    hid->onUpdateContent(keyItem);
    return true;
}

const QImage* UpdateDevIcon::lastImages()
{
    return keyImages;
}
