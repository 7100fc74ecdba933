// The keypad table against the figures the keypads are known by.
#include "keypadtable.h"
#include "testmain.h"

#include <QPainter>

namespace {

using Row = QList<int>;

Row range(int first, int last)
{
    Row row;
    for (int value = first; value <= last; ++value)
        row << value;
    return row;
}

// A row of 32 entries: the given ones, then -1.
Row padded(Row row)
{
    while (row.size() < KeypadTable::MaxKeys)
        row << -1;
    return row;
}

// Which corner the white top-left corner of a marked image ends up in.
QString whiteCorner(const QImage& image)
{
    const int far = image.width() - 1;
    const auto white = [&image](int x, int y) { return qGreen(image.pixel(x, y)) > 200; };
    if (white(0, 0))
        return QStringLiteral("top left");
    if (white(far, 0))
        return QStringLiteral("top right");
    if (white(0, far))
        return QStringLiteral("bottom left");
    return white(far, far) ? QStringLiteral("bottom right") : QStringLiteral("none");
}

// Blue with a white square at the top left and a red bar along the rest of
// the top edge, so turns and mirrors can be told apart.
QImage markedImage()
{
    QImage image(72, 72, QImage::Format_RGBA8888);
    image.fill(QColor(0, 40, 160));
    QPainter painter(&image);
    painter.fillRect(0, 0, 12, 12, Qt::white);
    painter.fillRect(12, 0, 60, 4, Qt::red);
    return image;
}

// Each layout's figures as the keypads are known by them; -1 and 6 are no layouts.
struct LayoutFigures
{
    int layout;
    const char* name;
    int keys;
    QSize panel, icon, grid;
    bool smallPackets;
    int pauseMs;
    const char *model, *firmware, *vendorFirmware;
    quint32 productId;
};

const LayoutFigures Figures[] = {
    {0, "H_Key_6", 6, {316, 523}, {72, 72}, {3, 2}, true, 0, "VKP-6P", "F28B23P1F43", "F28B23P1F43", 0x1F43},
    {1, "V_Key_6", 6, {316, 523}, {72, 72}, {2, 3}, true, 0, "VKP-6P", "F28B23P1F42", "F28B23P1F42", 0x1F42},
    {2, "H_Key_15", 15, {466, 523}, {72, 72}, {5, 3}, false, 0, "VKP-15P", "F43B35P1F41", "F43B35P1F41", 0x1F41},
    {3, "V_Key_15", 15, {466, 523}, {72, 72}, {3, 5}, false, 0, "VKP-15P", "F43B35P1F40", "VKP15-01-0", 0x1F40},
    {4, "H_Key_32", 32, {508, 523}, {48, 48}, {8, 4}, false, 1, "VKP-32L", "F70B48P1F44", "F70B48P1F44", 0x1F44},
    {5, "V_Key_32", 32, {508, 523}, {48, 48}, {4, 8}, false, 0, "VKP-32L", "F70B48P1F44", "F70B48P1F44", 0x1F44},
    {-1, "", 0, {}, {}, {}, false, 0, "Unknown Device", "Unknown Device", "Unknown Device", 0},
    {6, "", 0, {}, {}, {}, false, 0, "Unknown Device", "Unknown Device", "Unknown Device", 0},
};

} // namespace

class TestKeypadTable : public QObject
{
    Q_OBJECT

private slots:
    void shouldKnowEachLayout_data()
    {
        QTest::addColumn<int>("row");
        for (int row = 0; row < int(std::size(Figures)); ++row)
            QTest::newRow(qPrintable(QString::number(Figures[row].layout))) << row;
    }

    void shouldKnowEachLayout()
    {
        QFETCH(int, row);
        const LayoutFigures& figures = Figures[row];
        const int layout = figures.layout;
        const int keys = figures.keys;
        const quint32 productId = figures.productId;
        QCOMPARE(KeypadTable::isValidLayout(layout), keys > 0);
        QCOMPARE(KeypadTable::layoutName(layout), QString::fromLatin1(figures.name));
        QCOMPARE(KeypadTable::keyCount(layout), keys);
        QCOMPARE(KeypadTable::panelSize(layout), figures.panel);
        QCOMPARE(KeypadTable::iconSize(layout), figures.icon);
        QCOMPARE(KeypadTable::gridShape(layout), figures.grid);
        QCOMPARE(KeypadTable::usesSmallPackets(layout), figures.smallPackets);
        QCOMPARE(KeypadTable::writePauseMs(layout), figures.pauseMs);
        QCOMPARE(KeypadTable::modelName(layout), QString::fromLatin1(figures.model));
        QCOMPARE(KeypadTable::firmwareId(layout, false), QString::fromLatin1(figures.firmware));
        QCOMPARE(KeypadTable::firmwareId(layout, true), QString::fromLatin1(figures.vendorFirmware));
        const KeypadTable::LayoutFacts* facts = KeypadTable::layout(layout);
        QCOMPARE(facts != nullptr, keys > 0);
        if (!facts) {
            QCOMPARE(KeypadTable::buttonIndex(layout, 1), -1);
            QCOMPARE(KeypadTable::deviceKeyId(layout, 0), -1);
            return;
        }
        QCOMPARE(int(facts->layout), layout);
        // A layout's model is one the device thread tries, on our own protocol.
        QCOMPARE(facts->productId, productId);
        QVERIFY(KeypadTable::product(productId));
        QVERIFY(!KeypadTable::product(productId)->vendorLibrary);
    }

    void shouldNumberEachPositionsKey_data()
    {
        QTest::addColumn<int>("layout");
        QTest::addColumn<Row>("numbers"); // for positions 0, 1, 2, ...
        QTest::newRow("0") << 0 << range(0, 5);
        QTest::newRow("1") << 1 << Row{4, 1, 5, 2, 6, 3};
        QTest::newRow("2") << 2 << Row{5, 4, 3, 2, 1, 10, 9, 8, 7, 6, 15, 14, 13, 12, 11};
        QTest::newRow("3") << 3 << Row{1, 6, 11, 2, 7, 12, 3, 8, 13, 4, 9, 14, 5, 10, 15};
        QTest::newRow("4") << 4 << range(1, 32);
        QTest::newRow("5") << 5 << range(0, 31);
        QTest::newRow("invalid") << 6 << Row();
    }

    void shouldNumberEachPositionsKey()
    {
        QFETCH(int, layout);
        QFETCH(Row, numbers);
        for (int position = 0; position < numbers.size(); ++position)
            QCOMPARE(KeypadTable::deviceKeyNumber(layout, position), numbers[position]);
        QCOMPARE(KeypadTable::deviceKeyNumber(layout, numbers.size()), -1);
        QCOMPARE(KeypadTable::deviceKeyNumber(layout, -1), -1);
        // The first layout's row runs on past its keys.
        if (layout == 0) {
            for (int position = 6; position < 15; ++position)
                QCOMPARE(int(KeypadTable::layout(0)->deviceKeyNumbers[size_t(position)]), position);
        }
    }

    void shouldMapEachDeviceKeyIdToItsButton_data()
    {
        QTest::addColumn<int>("layout");
        QTest::addColumn<Row>("buttons"); // for device key ids 0 to 31
        QTest::newRow("0") << 0 << padded(Row{31} + range(0, 14));
        QTest::newRow("1") << 1 << padded(Row{-1, 1, 3, 5, 0, 2, 4});
        QTest::newRow("2") << 2 << padded(Row{-1, 4, 3, 2, 1, 0, 9, 8, 7, 6, 5, 14, 13, 12, 11, 10});
        QTest::newRow("3") << 3 << padded(Row{-1, 0, 3, 6, 9, 12, 1, 4, 7, 10, 13, 2, 5, 8, 11, 14});
        QTest::newRow("4") << 4 << Row{-1} + range(0, 30);
        QTest::newRow("5") << 5 << Row{31} + range(0, 30);
    }

    void shouldMapEachDeviceKeyIdToItsButton()
    {
        QFETCH(int, layout);
        QFETCH(Row, buttons);
        QCOMPARE(buttons.size(), KeypadTable::MaxKeys);
        for (int id = 0; id < buttons.size(); ++id)
            QCOMPARE(KeypadTable::buttonIndex(layout, id), buttons[id]);
        QCOMPARE(KeypadTable::buttonIndex(layout, -1), -1);
        // Read over the rows as one: id 32 reads the next row's first entry,
        // which takes layout 4's id 32 to button 31.
        const int next = layout + 1 < KeypadTable::LayoutCount ? KeypadTable::buttonIndex(layout + 1, 0) : -1;
        QCOMPARE(KeypadTable::buttonIndex(layout, 32), next);
        if (layout == H_Key_32)
            QCOMPARE(next, 31);
    }

    // The id a simulated keypad reports for a button is one the program maps
    // back to that button; no id within its keys reaches the last button of
    // the vertical 32-key layout.
    void shouldFindTheDeviceKeyIdOfEachButton()
    {
        for (int layout = 0; layout < KeypadTable::LayoutCount; ++layout) {
            const int keys = KeypadTable::keyCount(layout);
            for (int button = 0; button < keys; ++button) {
                const int id = KeypadTable::deviceKeyId(layout, button);
                if (layout == V_Key_32 && button == 31) {
                    QCOMPARE(id, -1);
                    continue;
                }
                QVERIFY(id >= 1 && id <= keys);
                QCOMPARE(KeypadTable::buttonIndex(layout, id), button);
            }
            QCOMPARE(KeypadTable::deviceKeyId(layout, keys), -1);
        }
    }

    void shouldTurnImagesAsEachKeypadIsMounted_data()
    {
        QTest::addColumn<int>("layout");
        QTest::addColumn<QString>("corner"); // where the top-left corner ends up
        QTest::newRow("0: 90 degrees") << 0 << "top right";
        QTest::newRow("1: vertical mirror") << 1 << "bottom left";
        QTest::newRow("2: 180 degrees") << 2 << "bottom right";
        QTest::newRow("3: 270 degrees") << 3 << "bottom left";
        QTest::newRow("4: 180 degrees") << 4 << "bottom right";
        QTest::newRow("5: 270 degrees") << 5 << "bottom left";
        QTest::newRow("invalid: as it is") << 6 << "top left";
    }

    void shouldTurnImagesAsEachKeypadIsMounted()
    {
        QFETCH(int, layout);
        QFETCH(QString, corner);
        const QImage image = markedImage();
        const QImage turned = KeypadTable::turnedForDevice(image, layout);
        QCOMPARE(whiteCorner(turned), corner);
        QCOMPARE(KeypadTable::uprightFromDevice(turned, layout), image);
    }

    void shouldKnowTheKeypadsByProductId()
    {
        const QVector<quint32> ids{0x1F43, 0x1F42, 0x1F41, 0x1F40, 0x1F45, 0x1F44, 0x110E};
        QCOMPARE(KeypadTable::productIds(), ids);
        for (quint32 id : ids) {
            QVERIFY(KeypadTable::isKeypad(0xFFFF, id));
            QVERIFY(!KeypadTable::isKeypad(0x046D, id));
            QCOMPARE(KeypadTable::product(id)->vendorLibrary, id == 0x110E);
            QCOMPARE(KeypadTable::hasBootLoader(id), id == 0x1F43 || id == 0x1F42);
        }
        QCOMPARE(KeypadTable::VendorId, quint32(0xFFFF));
        QCOMPARE(KeypadTable::VendorLibraryProductId, quint32(0x110E));
        QCOMPARE(KeypadTable::BootLoaderProductId, quint32(0xFF00));
        QVERIFY(!KeypadTable::isKeypad(0xFFFF, 0xFF00));
        QVERIFY(!KeypadTable::product(0x1F46));
    }
};

KEYSTAGE_TEST_MAIN(TestKeypadTable)
#include "tst_keypadtable.moc"
