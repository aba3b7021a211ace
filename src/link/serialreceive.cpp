#include "link/serialreceive.h"

#include "link/linkstate.h"

namespace {

constexpr int BlockHeaderSize = 4;

// The first chunk of a reply starts the buffer afresh.
void beginChunk()
{
    if (!ReplyChunkSeen) {
        ReplyByteCount = 0;
        ReplyBufferUsed = 0;
        BlockLength = 0;
    }
    ReplyChunkSeen = true;
}

// Stores the chunk's bytes from `from` on behind those held. False when the
// buffer is full: the rest of the chunk is lost and the receive step ends.
bool storeBytes(const QByteArray& chunk, qsizetype from)
{
    int index = ReplyBufferUsed;
    for (qsizetype i = from; i < chunk.size(); ++i, ++index) {
        if (index > ReplyBufferLast) return false;
        ReplyBuffer[size_t(index)] = uint8_t(chunk[i]);
        ReplyText.append(QChar(uchar(chunk[i])));
    }
    ReplyBufferUsed = index;
    ReplyByteCount += int(chunk.size());
    ReplyTicks = 0;
    return true;
}

double blockLengthOf(const QByteArray& chunk)
{
    double length = 0;
    double place = 1;
    for (qsizetype i = 0; i < BlockHeaderSize && i < chunk.size(); ++i, place *= 256)
        length += uchar(chunk[i]) * place;
    return length;
}

} // namespace

void Rs232Receive(const QByteArray& chunk)
{
    if (BlockReceive)
        Rs232RecvBlock(chunk);
    else
        Rs232RecvLine(chunk);
}

void Rs232RecvLine(const QByteArray& chunk)
{
    if (!LinkGateOpen()) return;
    beginChunk();
    if (!storeBytes(chunk, 0)) return;
    const qsizetype lineFeed = ReplyText.indexOf(QLatin1Char('\n'));
    if (lineFeed < 0) return;
    ReplyPending = false;
    ReplyText.truncate(lineFeed);
    ReplyByteCount -= 1;
}

void Rs232RecvBlock(const QByteArray& chunk)
{
    if (!LinkGateOpen()) return;
    const bool first = !ReplyChunkSeen;
    beginChunk();
    if (first) BlockLength = blockLengthOf(chunk);
    if (!storeBytes(chunk, first ? BlockHeaderSize : 0)) return;
    if (ReplyByteCount == BlockLength + BlockHeaderSize) ReplyPending = false;
}
