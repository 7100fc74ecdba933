#include "keypadfixture.h"

#include "objectregistry.h"

#include <QFile>

void KeypadFixture::setUp(unsigned short productId)
{
    keypad = std::make_unique<SimulatedKeypad>(productId);
    HidTransport::setInstance(keypad.get());
    QFile::remove(Settings().fileName());
    settings = std::make_unique<Settings>();
    layouts = std::make_unique<ButtonLayoutConfig>();
    ObjectRegistry::registerObject(ComponentId::Settings, settings.get());
    ObjectRegistry::registerObject(ComponentId::ButtonLayoutConfig, layouts.get());
    model = std::make_unique<KeyItemModel>();
    hid = std::make_unique<Hid_Comm>();
    ObjectRegistry::registerObject(ComponentId::KeyItemModel, model.get());
    ObjectRegistry::registerObject(ComponentId::HidComm, hid.get());
}

void KeypadFixture::tearDown()
{
    ObjectRegistry::clear();
    hid.reset();
    model.reset();
    layouts.reset();
    settings.reset();
    HidTransport::setInstance(nullptr);
    keypad.reset();
}

void KeypadFixture::useLayout(int layout)
{
    layouts->changeLayout(layout);
    model->changeLayoutButtonView(KeyLayout(layout));
    hid->onButtonLayoutChanged(KeyLayout(layout));
}
