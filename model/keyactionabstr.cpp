#include "keyactionabstr.h"

#include "ka_execute.h"
#include "ka_folder.h"
#include "ka_hotkey.h"
#include "ka_linkbutton.h"
#include "ka_marcokey.h"
#include "ka_paststring.h"
#include "logging.h"

#include <QDebug>

KeyActionAbstr* KeyActionAbstr::newActionObject(KeyItem* owner, KeyActionType type)
{
    switch (type) {
    case KAT_FOLDER:
        return new KA_Folder(owner);
    case KAT_HOTKEY:
        return new KA_HotKey(owner);
    case KAT_MACROKEY:
        return new KA_MarcoKey;
    case KAT_EXE_APP_FILE:
    case KAT_OPEN_WEBSITE:
        return new KA_Execute(owner);
    case KAT_PASTE_STRING:
        return new KA_PastString;
    case KAT_LINK_BUTTON:
        return new KA_LinkButton;
    default:
        LOG_MSG(QStringLiteral("ERR: unknow key action type!!! -> %1").arg(int(type)));
        return nullptr;
    }
}

KeyActionAbstr::~KeyActionAbstr() = default;

KeyActionAbstr& KeyActionAbstr::operator=(const KeyActionAbstr&)
{
    qDebug() << "KeyActionAbstr::operator =";
    return *this;
}

bool KeyActionAbstr::doAction()
{
    return true;
}

bool KeyActionAbstr::doAction(int)
{
    return false;
}

bool KeyActionAbstr::isFolder() const
{
    return false;
}

void KeyActionAbstr::auxAction() {}
