#pragma once

#include "hidtransport.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QList>
#include <QMap>
#include <QMutex>

// A transport that records every call and answers from scripted results, for
// checking the exact reports the host side sends.
class RecordingTransport : public HidTransport
{
public:
    enum Kind
    {
        Write,
        Feature,
        GetFeature,
        Read,
    };
    struct Call
    {
        Kind kind;
        QByteArray bytes;
        qint64 atNs;
    };

    RecordingTransport();
    ~RecordingTransport() override;

    int init() override { return initResult; }
    int exit() override { return 0; }
    HidDeviceHandle* open(unsigned short vendorId, unsigned short productId) override;
    void close(HidDeviceHandle* device) override;
    int write(HidDeviceHandle* device, const unsigned char* data, size_t length) override;
    int readTimeout(HidDeviceHandle* device, unsigned char* data, size_t length, int milliseconds) override;
    int sendFeatureReport(HidDeviceHandle* device, const unsigned char* data, size_t length) override;
    int getFeatureReport(HidDeviceHandle* device, unsigned char* data, size_t length) override;
    QString error(HidDeviceHandle*) override { return QString(); }

    QList<Call> calls(Kind kind) const;
    void clearCalls();

    int initResult = 0;
    bool openFails = false;
    int opens = 0;
    int closes = 0;
    unsigned short openedProduct = 0;
    // Scripted answers: read results are taken from the front; an empty
    // queue reads as a timeout.
    QList<QByteArray> inputReports;
    int readResult = 0; // used when inputReports is empty
    QByteArray featureAnswer;
    QMap<quint8, QByteArray> featureAnswers; // by report id, before featureAnswer
    int featureAnswerCount = -2;             // -2: the answer's length
    int featureSendShortBy = 0;

private:
    mutable QMutex mutex;
    QList<Call> recorded;
    QElapsedTimer clock;
    int token = 0;
};
