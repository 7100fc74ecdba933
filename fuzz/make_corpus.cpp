// Writes the seed files of the export file fuzzers: small, valid layout and
// favourites files covering every kind of value the key maps hold, plus a few
// invalid ones, into DIRECTORY/importfile; their contents, as
// fuzz_importcontent takes them, into DIRECTORY/importcontent.
// Usage: fuzz_make_corpus DIRECTORY

#include "settings.h"
#include "settingskeys.h"

#include <QColor>
#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

QVariantMap face(const QString& text, bool withImage)
{
    QVariantMap map{{QStringLiteral("hintFlags"), 1},
                    {QStringLiteral("text"), text},
                    {QStringLiteral("textAlign"), 68},
                    {QStringLiteral("textFont"), QFont(QStringLiteral("DejaVu Sans"), 9)},
                    {QStringLiteral("textColor"), QColor(255, 255, 255)},
                    {QStringLiteral("defImgPath"), QStringLiteral("btn_textstring")}};
    if (withImage) {
        QImage image(4, 4, QImage::Format_ARGB32_Premultiplied);
        image.fill(qPremultiply(qRgba(200, 40, 40, 128)));
        map.insert(QStringLiteral("userImg"), QPixmap::fromImage(image));
    } else {
        map.insert(QStringLiteral("userImg"), QPixmap());
    }
    return map;
}

QVariantMap key(const QString& type, int index, const QVariantMap& action, const QVariantMap& look)
{
    return {{QStringLiteral("actionTypeString"), type},
            {QStringLiteral("multiFeatureFlag"), false},
            {QStringLiteral("keyIdx"), index},
            {QStringLiteral("cfIdx"), 0},
            {QStringLiteral("layout"), 3},
            {QStringLiteral("keyActionMap_0"), action},
            {QStringLiteral("keyRenderMap_0"), look}};
}

QVariantMap pasteKey(int index, bool withImage)
{
    return key(QStringLiteral("KAT_PASTE_STRING"), index, {{QStringLiteral("strText"), QStringLiteral("hello")}},
               face(QStringLiteral("Paste"), withImage));
}

QVariantMap macroKey(int index)
{
    const QVariantMap press{
        {QStringLiteral("qtKeyCode"), 65}, {QStringLiteral("nativeKeyCode"), 38}, {QStringLiteral("isPress"), true}};
    const QVariantMap release{
        {QStringLiteral("qtKeyCode"), 65}, {QStringLiteral("nativeKeyCode"), 38}, {QStringLiteral("isPress"), false}};
    return key(QStringLiteral("KAT_MACROKEY"), index,
               {{QStringLiteral("MarcoKeyItemCnt"), 2},
                {QStringLiteral("MarcoKeyItem_0"), press},
                {QStringLiteral("MarcoKeyItem_1"), release}},
               face(QStringLiteral("Macro"), false));
}

QVariantMap folderKey(int index)
{
    const QVariantMap back = key(QStringLiteral("KAT_LINK_BUTTON"), 14,
                                 {{QStringLiteral("comment"), QStringLiteral("link button")}}, face(QString(), false));
    return key(QStringLiteral("KAT_FOLDER"), index,
               {{QStringLiteral("childListCnt"), 2},
                {QStringLiteral("isExpend"), false},
                {QStringLiteral("appName"), QStringLiteral("firefox")},
                {QStringLiteral("childMap_0"), pasteKey(0, false)},
                {QStringLiteral("childMap_1"), back}},
               face(QStringLiteral("Folder"), false));
}

// fuzz_importcontent's input: the kind, then the content as a QVariant.
QByteArray contentInput(bool favourites, const QVariantMap& content)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << QVariant(content);
    return bytes.prepend(favourites ? '\1' : '\0');
}

// A Keystage.conf as the store saves it, holding one layout's page and the
// favourites: fuzz_settingsload's seed.
QByteArray settingsFile(const QVariantMap& page, const QVariantMap& favourites)
{
    QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path()));
    QString path;
    {
        Settings store;
        store.setValue(SettingsKeys::keyItemsKey(QStringLiteral("V_Key_15")), page);
        store.setValue(SettingsKeys::MyFavoriteItems, favourites);
        if (!store.save())
            return QByteArray();
        path = store.fileName();
    }
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool write(const QString& directory, const QString& name, const QByteArray& bytes)
{
    QFile file(QDir(directory).filePath(name));
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(bytes) == bytes.size();
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        QTextStream(stderr) << "usage: fuzz_make_corpus DIRECTORY" << Qt::endl;
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    const QString directory = QString::fromLocal8Bit(argv[1]) + QStringLiteral("/importfile");
    const QString contents = QString::fromLocal8Bit(argv[1]) + QStringLiteral("/importcontent");
    const QString settingsFiles = QString::fromLocal8Bit(argv[1]) + QStringLiteral("/settingsload");
    QDir().mkpath(directory);
    QDir().mkpath(contents);
    QDir().mkpath(settingsFiles);

    const QVariantMap layout{{SettingsKeys::KeyCnt, 3},
                             {SettingsKeys::keyMapKey(0), pasteKey(0, true)},
                             {SettingsKeys::keyMapKey(1), macroKey(1)},
                             {SettingsKeys::keyMapKey(2), folderKey(2)}};
    const QVariantMap favourites{{SettingsKeys::KeyCnt, 2},
                                 {SettingsKeys::keyMapKey(0), pasteKey(0, false)},
                                 {SettingsKeys::keyMapKey(1), macroKey(1)}};
    // Values the program does not write today but the reader accepts.
    const QVariantMap otherValues{{QStringLiteral("list"), QVariantList{1, QStringLiteral("two"), QVariantMap()}},
                                  {QStringLiteral("names"), QStringList{QStringLiteral("a"), QString()}},
                                  {QStringLiteral("bytes"), QByteArray("\x00\x01", 2)},
                                  {QStringLiteral("big"), qlonglong(1) << 40},
                                  {QStringLiteral("real"), 0.5},
                                  {QStringLiteral("none"), QVariant()}};

    // Values a hostile file with a valid checksum may carry: a colour model
    // that is no QColor::Spec, and a key count far beyond the items.
    QByteArray badColour = contentInput(false, layout);
    QByteArray white;
    {
        QDataStream stream(&white, QIODevice::WriteOnly);
        stream << QVariant(QColor(255, 255, 255));
    }
    const int colour = badColour.indexOf(white);
    if (colour < 0)
        return 1;
    badColour[colour + 5] = '\x7f';
    QVariantMap hugeCount = favourites;
    hugeCount.insert(SettingsKeys::KeyCnt, 0x7fffffff);

    // The favourites file with the first digit of its checksum changed.
    QByteArray badChecksum = Settings::encodeExportFile(SettingsKeys::MyFavorite, favourites);
    const QString sum = Settings::checksum({{SettingsKeys::MyFavorite, favourites}});
    QByteArray sumText;
    for (const QChar c : sum)
        sumText.append('\0').append(char(c.unicode()));
    const int tag = badChecksum.indexOf(sumText);
    if (tag < 0)
        return 1;
    badChecksum[tag + 1] = sum.at(0) == QLatin1Char('0') ? '1' : '0';

    QByteArray forged;
    {
        QDataStream stream(&forged, QIODevice::WriteOnly);
        stream << quint32(0x7fffffff) << quint32(0xfffffff0);
    }

    const bool ok =
        write(directory, QStringLiteral("layout_keys"), Settings::encodeExportFile(SettingsKeys::MyLayout, layout)) &&
        write(directory, QStringLiteral("layout_empty"), Settings::encodeExportFile(SettingsKeys::MyLayout, {})) &&
        write(directory, QStringLiteral("favorites_keys"),
              Settings::encodeExportFile(SettingsKeys::MyFavorite, favourites)) &&
        write(directory, QStringLiteral("favorites_other_values"),
              Settings::encodeExportFile(SettingsKeys::MyFavorite, otherValues)) &&
        write(directory, QStringLiteral("favorites_bad_checksum"), badChecksum) &&
        write(directory, QStringLiteral("forged_counts"), forged) &&
        write(contents, QStringLiteral("layout_keys"), contentInput(false, layout)) &&
        write(contents, QStringLiteral("favorites_keys"), contentInput(true, favourites)) &&
        write(contents, QStringLiteral("favorites_other_values"), contentInput(true, otherValues)) &&
        write(contents, QStringLiteral("layout_bad_colour_model"), badColour) &&
        write(contents, QStringLiteral("favorites_huge_key_count"), contentInput(true, hugeCount)) &&
        write(settingsFiles, QStringLiteral("saved.conf"), settingsFile(layout, favourites));
    if (!ok) {
        QTextStream(stderr) << "cannot write into " << directory << Qt::endl;
        return 1;
    }
    return 0;
}
