#pragma once

// The bits of KeyRenderInfo::hintFlags, all of them here.
//
//   bit 0      (0x01) ShowTitle: the title is drawn. Set by default (the
//                     reset value 1); clearing it keeps the text undrawn.
//   bits 1-3   (0x0E) LiveKindMask: what a live face shows, a LiveKind
//                     number 0..5 (0: none, a static face). 6 and 7 are
//                     unused and read as none.
//   bit 4      (0x10) LiveGraph: a live figure also shows a small graph of
//                     its last 60 samples (processor, memory, network only).
//   bits 5-31         unused; kept as read, never set.
//
// Other readers of the stored key files know only bit 0: for them a live key
// is its static face, title and icon, which is why a live face keeps both.
namespace FaceHints {

constexpr int ShowTitle = 0x01;
constexpr int LiveKindShift = 1;
constexpr int LiveKindMask = 0x07 << LiveKindShift;
constexpr int LiveGraph = 0x10;

enum class LiveKind
{
    None = 0,
    Processor = 1, // processor use over all cores, percent
    Memory = 2,    // memory in use, percent
    Network = 3,   // receive and send rates of all interfaces but loopback
    Clock = 4,     // hours and minutes in the user's locale
    Date = 5,      // today in the user's locale
};
constexpr int LiveKindCount = 6;

LiveKind liveKind(int hintFlags);
int withLiveKind(int hintFlags, LiveKind kind);
bool showsGraph(int hintFlags);
int withGraph(int hintFlags, bool graph);

// The figures the system usage sampler provides (not the clock or the date).
bool isSampled(LiveKind kind);
// The kinds that can carry a graph: the sampled ones.
inline bool canShowGraph(LiveKind kind)
{
    return isSampled(kind);
}

} // namespace FaceHints
