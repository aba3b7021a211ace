#pragma once
// The serial port's receive event: the bytes that arrive go into the reply.

#include <QByteArray>

// The receive event: the chunk goes to the line or the block receiver.
void Rs232Receive(const QByteArray& chunk);
// Text receive: bytes are kept in ReplyBuffer and ReplyText; a line feed ends
// the reply and what follows it is dropped from ReplyText.
void Rs232RecvLine(const QByteArray& chunk);
// Block receive: the first four bytes of a reply are the block's length,
// little-endian; the reply ends when that many bytes followed them.
void Rs232RecvBlock(const QByteArray& chunk);
