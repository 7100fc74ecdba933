#pragma once

#include "buttonlayoutconfig.h"
#include "ka_folder.h"
#include "ka_paststring.h"
#include "keyitemmodel.h"
#include "objectregistry.h"
#include "settings.h"

#include <QFile>

#include <memory>

// A fresh settings store, layout config and key model in the 15-key
// vertical layout, registered as the program registers them; for the tests
// of the key model and of what edits it.
struct KeyModelFixture
{
    std::unique_ptr<Settings> settings;
    ButtonLayoutConfig layouts;
    std::unique_ptr<KeyItemModel> model;

    static KA_Folder* folderOf(const KeyItem* item)
    {
        return item ? qobject_cast<KA_Folder*>(item->action[0]) : nullptr;
    }

    void setUp()
    {
        QFile::remove(Settings().fileName());
        settings = std::make_unique<Settings>();
        layouts.changeLayout(V_Key_15);
        model = std::make_unique<KeyItemModel>();
        ObjectRegistry::registerObject(ComponentId::Settings, settings.get());
        ObjectRegistry::registerObject(ComponentId::ButtonLayoutConfig, &layouts);
        ObjectRegistry::registerObject(ComponentId::KeyItemModel, model.get());
    }

    void tearDown()
    {
        model.reset();
        ObjectRegistry::clear();
        settings.reset();
    }

    KeyItem* put(int idx, KeyActionType type, const QString& text = QStringLiteral("text"))
    {
        model->createKeyAction(idx, type);
        if (type == KAT_PASTE_STRING)
            static_cast<KA_PastString*>(model->keyItemAt(idx)->action[0])->strText = text;
        return model->keyItemAt(idx);
    }

    void open(int idx)
    {
        KA_Folder* folder = folderOf(model->keyItemAt(idx));
        model->beginUpdate();
        model->changeListHead(folder, &folder->childList);
        model->endUpdate(true);
    }
};
