// Replays a fuzz target's seed corpus through its entry points without
// libFuzzer, so that every build checks that the seeds and simple mutations
// of them (truncations, single-byte changes) are handled: the test passes
// when every input returns. Each target links its own copy of this file.

#include "testenvironment.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTextStream>

#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

namespace {

int feed(const QByteArray& bytes)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.constData()), size_t(bytes.size()));
    return 1;
}

// Positions tried per seed: every one in small seeds, evenly spread ones in
// larger seeds, so no replay takes long. Targets whose inputs go through
// files on disk ask for fewer.
#ifndef KEYSTAGE_FUZZ_POSITIONS
#define KEYSTAGE_FUZZ_POSITIONS 2048
#endif
constexpr int MaxPositions = KEYSTAGE_FUZZ_POSITIONS;

// The changes that most often turn a valid file into a hostile one: cut it
// anywhere, and give any byte (a count, a length, a type id) another value.
int feedMutations(const QByteArray& seed)
{
    const int step = seed.size() / MaxPositions + 1;
    int inputs = feed(seed);
    for (int size = 0; size < seed.size(); size += step)
        inputs += feed(seed.left(size));
    for (int at = 0; at < seed.size(); at += step) {
        for (const uchar change : {uchar(0x01), uchar(0x80), uchar(0xff)}) {
            QByteArray mutated = seed;
            mutated[at] = char(uchar(mutated.at(at)) ^ change);
            inputs += feed(mutated);
        }
        QByteArray appended = seed;
        appended.insert(at, '\x7f');
        inputs += feed(appended);
    }
    return inputs;
}

} // namespace

int main(int argc, char** argv)
{
    // Never touch the user's own directories, whatever Qt decides to cache.
    TestEnvironment environment;
    setTestEnvironment(&environment);
    LLVMFuzzerInitialize(&argc, &argv);

    const QString directory = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral(KEYSTAGE_FUZZ_CORPUS);
    const QFileInfoList seeds = QDir(directory).entryInfoList(QDir::Files, QDir::Name);
    QTextStream out(stdout);
    if (seeds.isEmpty()) {
        out << "No corpus files in " << directory << Qt::endl;
        return 1;
    }
    int inputs = 0;
    for (const QFileInfo& seed : seeds) {
        QFile file(seed.absoluteFilePath());
        if (!file.open(QIODevice::ReadOnly)) {
            out << "Cannot read " << seed.absoluteFilePath() << Qt::endl;
            return 1;
        }
        const int fed = feedMutations(file.readAll());
        out << seed.fileName() << ": " << fed << " inputs" << Qt::endl;
        inputs += fed;
    }
    out << "PASS: " << seeds.size() << " corpus files, " << inputs << " inputs" << Qt::endl;
    return 0;
}
