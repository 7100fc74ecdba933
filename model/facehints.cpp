#include "facehints.h"

namespace FaceHints {

LiveKind liveKind(int hintFlags)
{
    const int kind = (hintFlags & LiveKindMask) >> LiveKindShift;
    return kind < LiveKindCount ? LiveKind(kind) : LiveKind::None;
}

int withLiveKind(int hintFlags, LiveKind kind)
{
    return (hintFlags & ~LiveKindMask) | ((int(kind) << LiveKindShift) & LiveKindMask);
}

bool showsGraph(int hintFlags)
{
    return (hintFlags & LiveGraph) != 0;
}

int withGraph(int hintFlags, bool graph)
{
    return graph ? (hintFlags | LiveGraph) : (hintFlags & ~LiveGraph);
}

bool isSampled(LiveKind kind)
{
    return kind == LiveKind::Processor || kind == LiveKind::Memory || kind == LiveKind::Network;
}

} // namespace FaceHints
