#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QUrl>
#include <QVersionNumber>

// One release as the update feed describes it. The feed is a small JSON
// object:
//   {"version": "1.4.0",
//    "url": "https://example.org/keystage_1.4.0_amd64.deb",
//    "sha256": "<64 hex digits>",
//    "notes": "What changed, as plain text (optional)."}
// Anything else in the object is ignored, so later feeds may add fields.
class UpdateFeed
{
    Q_DECLARE_TR_FUNCTIONS(UpdateFeed)

public:
    // A feed larger than this is refused unread.
    static constexpr qint64 MaxFeedSize = 64 * 1024;
    // Longer notes are cut.
    static constexpr int MaxNotesLength = 4000;

    QVersionNumber version;
    QUrl packageUrl;
    QByteArray sha256; // lower-case hex
    QString notes;

    // False when the feed is malformed, with the reason in error (translated).
    static bool parse(const QByteArray& json, UpdateFeed& feed, QString& error);

    // Where the program may fetch from: HTTPS anywhere, plain HTTP only on
    // this machine (a local mirror, the tests).
    static bool isAcceptableUrl(const QUrl& url);

    // The file name to save the package under: the one in its address when
    // it is a plain package name, else one made from the version.
    QString packageFileName() const;
};
