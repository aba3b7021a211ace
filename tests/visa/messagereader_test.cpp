#include "visa/linescanner.h"
#include "visa/messagereader.h"

#include <gtest/gtest.h>

#include <deque>
#include <ostream>
#include <string>

using namespace selvane::visa;

namespace {

// A piece the scripted source hands out per fetch, or the error it fails with.
struct Piece {
    std::string bytes;
    bool end = false;
    ViStatus status = VI_SUCCESS;
};

class ScriptedSource : public MessageSource {
  public:
    explicit ScriptedSource(std::deque<Piece> pieces) : pieces_(std::move(pieces)) {}

    ViStatus fetch(size_t, const ReadSettings&, const Deadline&, InputQueue& queue) override
    {
        if (pieces_.empty()) return VI_ERROR_TMO;
        const Piece piece = pieces_.front();
        pieces_.pop_front();
        if (piece.status != VI_SUCCESS) return piece.status;
        queue.push(reinterpret_cast<const uint8_t*>(piece.bytes.data()), piece.bytes.size(), piece.end);
        return VI_SUCCESS;
    }

  private:
    std::deque<Piece> pieces_;
};

struct Expected {
    size_t count;
    ViStatus status;
    std::string bytes;
};

struct ReadCase {
    const char* what;
    std::deque<Piece> pieces;
    bool termCharEnabled;
    std::vector<Expected> reads;
    bool suppressEnd = false;
};

std::ostream& operator<<(std::ostream& out, const ReadCase& c)
{
    return out << c.what;
}

class ReadEnds : public ::testing::TestWithParam<ReadCase> {};

TEST_P(ReadEnds, WithTheStatusAndBytesOfVisa)
{
    const ReadCase& c = GetParam();
    ScriptedSource source(c.pieces);
    InputQueue queue;
    ReadSettings settings;
    settings.termCharEnabled = c.termCharEnabled;
    settings.suppressEnd = c.suppressEnd;
    for (size_t i = 0; i < c.reads.size(); ++i) {
        const Expected& expected = c.reads[i];
        std::string buffer(expected.count, '\0');
        size_t got = 99;
        const ViStatus status = readMessage(source, queue, settings, Deadline(0),
                                            reinterpret_cast<uint8_t*>(buffer.data()), expected.count, got);
        EXPECT_EQ(viStatusName(status), std::string(viStatusName(expected.status)))
            << c.what << ", read " << i;
        EXPECT_EQ(buffer.substr(0, got), expected.bytes) << c.what << ", read " << i;
    }
}

const std::string k256(256, 'x');

INSTANTIATE_TEST_SUITE_P(
    Table, ReadEnds,
    ::testing::Values(ReadCase{"END ends a read", {{"hello\n", true}}, false, {{256, VI_SUCCESS, "hello\n"}}},
                      ReadCase{"pieces gather until END",
                               {{"he"}, {"ll"}, {"o\n", true}},
                               false,
                               {{256, VI_SUCCESS, "hello\n"}}},
                      ReadCase{"the count stops first, the rest waits",
                               {{"hello\n", true}},
                               false,
                               {{3, VI_SUCCESS_MAX_CNT, "hel"}, {256, VI_SUCCESS, "lo\n"}}},
                      ReadCase{"256 bytes and a terminator: all 256, then the terminator",
                               {{k256 + "\n", true}},
                               false,
                               {{256, VI_SUCCESS_MAX_CNT, k256}, {256, VI_SUCCESS, "\n"}}},
                      ReadCase{"END on the last byte of the count is END",
                               {{"abcd", true}},
                               false,
                               {{4, VI_SUCCESS, "abcd"}}},
                      ReadCase{"messages stay apart",
                               {{"one", true}, {"two", true}},
                               false,
                               {{256, VI_SUCCESS, "one"}, {256, VI_SUCCESS, "two"}}},
                      ReadCase{"an empty message", {{"", true}}, false, {{256, VI_SUCCESS, ""}}},
                      ReadCase{"time-out keeps the partial count",
                               {{"abc"}, {"", false, VI_ERROR_TMO}, {"def\n", true}},
                               false,
                               {{256, VI_ERROR_TMO, "abc"}, {256, VI_SUCCESS, "def\n"}}},
                      ReadCase{"a lost link after some bytes",
                               {{"ab"}, {"", false, VI_ERROR_CONN_LOST}},
                               false,
                               {{256, VI_ERROR_CONN_LOST, "ab"}}},
                      ReadCase{"the term character ends a read when enabled",
                               {{"a\nb\n", true}},
                               true,
                               {{256, VI_SUCCESS_TERM_CHAR, "a\n"}, {256, VI_SUCCESS_TERM_CHAR, "b\n"}}},
                      ReadCase{"the term character means nothing when not enabled",
                               {{"a\nb\n", true}},
                               false,
                               {{256, VI_SUCCESS, "a\nb\n"}}},
                      ReadCase{"suppressed END: the read runs on to the term character",
                               {{"one", true}, {"two\nx", true}},
                               true,
                               {{256, VI_SUCCESS_TERM_CHAR, "onetwo\n"}, {256, VI_ERROR_TMO, "x"}},
                               true}));

struct ScanCase {
    const char* what;
    std::vector<std::string> chunks;
    std::vector<std::string> messages;
};

std::ostream& operator<<(std::ostream& out, const ScanCase& c)
{
    return out << c.what;
}

class LineScannerSplits : public ::testing::TestWithParam<ScanCase> {};

TEST_P(LineScannerSplits, AtTheLineFeedOutsideBlocks)
{
    LineScanner scanner;
    std::vector<std::string> messages(1);
    for (const std::string& chunk : GetParam().chunks) {
        std::string_view rest = chunk;
        while (!rest.empty()) {
            const size_t end =
                scanner.scan(reinterpret_cast<const uint8_t*>(rest.data()), rest.size(), uint8_t('\n'));
            const size_t count = end == LineScanner::kNoEnd ? rest.size() : end;
            messages.back() += rest.substr(0, count);
            if (end != LineScanner::kNoEnd) messages.emplace_back();
            rest.remove_prefix(count);
        }
    }
    messages.pop_back(); // the unfinished one
    EXPECT_EQ(messages, GetParam().messages) << GetParam().what;
}

INSTANTIATE_TEST_SUITE_P(
    Table, LineScannerSplits,
    ::testing::Values(
        ScanCase{"text lines", {"abc\nde", "f\n"}, {"abc\n", "def\n"}},
        ScanCase{"a block keeps its line feeds", {std::string("#13a\nb\n:X\n")}, {"#13a\nb\n", ":X\n"}},
        ScanCase{"a block split anywhere",
                 {"#", "2", "1", "0\n\n\n\n\n\n\n\n\n\n", "\n"},
                 {"#210\n\n\n\n\n\n\n\n\n\n\n"}},
        ScanCase{"#0 is no definite block", {"#0a\nb\n"}, {"#0a\n", "b\n"}},
        ScanCase{"# inside text is text", {"x#13a\nb\n"}, {"x#13a\n", "b\n"}},
        ScanCase{"a short length digit run is text", {"#2\n"}, {"#2\n"}},
        ScanCase{"a block of length 0", {"#10\n"}, {"#10\n"}}));

} // namespace
