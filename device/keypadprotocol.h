#pragma once

#include <QtGlobal>

// The keypad's HID reports: ids, lengths and fixed fields, shared by the
// host side (VTHidDev) and the device side (SimulatedKeypad) so the two
// cannot drift apart. Lengths include the report id. Multi-byte fields are
// little-endian.
namespace KeypadProtocol {

// Output report 0x02: a chunk of an image or firmware object.
constexpr unsigned char DataChunkId = 0x02;
constexpr int LargeChunkReportSize = 8017;
constexpr int SmallChunkReportSize = 512; // the NUC442 models' image path
constexpr int LargeChunkCapacity = 8000;
constexpr int SmallChunkCapacity = 495;
constexpr int ChunkHeaderSize = 17;
constexpr quint32 ChunkMagic = 0x55AAAA55;
constexpr quint32 ChunkMagicTail = 0x44332211;

// Feature reports
constexpr unsigned char VersionId = 0x10;
constexpr unsigned char BacklightId = 0x11;
constexpr unsigned char ImageCommandId = 0x12;
constexpr unsigned char FirmwareCommitId = 0x13;
constexpr unsigned char KeyCommandId = 0x14;
constexpr unsigned char SerialId = 0x17;
constexpr unsigned char ShowImageSub = 0x01;
constexpr unsigned char ShowLogoSub = 0x02;
constexpr unsigned char ClearKeySub = 0xAC;
constexpr unsigned char BootLoaderSub = 0xDC;
constexpr unsigned char BootLoaderSub2 = 0xCD;
constexpr int BacklightReportSize = 2;
constexpr int ImageCommandReportSize = 33;
constexpr int FirmwareCommitReportSize = 17;
constexpr int KeyCommandReportSize = 17;
constexpr int SerialReportSize = 17;
constexpr int SerialNumberLength = 16;
constexpr int VersionReportSize = 33;
constexpr quint32 LogoMarker = 999;
constexpr quint32 LogoMarkerTail = 9999;

// The host's header in front of a firmware image; checksums start after it.
constexpr int FirmwareHeaderSize = 64;

// Boot loader output reports, id 0x00
constexpr int BootReportSize = 513;
constexpr int BootDataHeaderSize = 7;
constexpr int BootDataCapacity = BootReportSize - BootDataHeaderSize;
constexpr int BootPageSize = 2048;
constexpr quint16 BootPageEndMarker = 0xFF00;
constexpr quint16 BootFinishMarker = 0xFE00;

// Input reports
constexpr int InputReportSize = 65;
constexpr unsigned char KeyStateId = 0x01;
constexpr int KeyStateBits = 64;
constexpr unsigned char AcknowledgeId = 0x02;
constexpr unsigned char AcknowledgeCode = 0xB1;

} // namespace KeypadProtocol
