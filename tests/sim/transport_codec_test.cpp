// The byte-level pieces under the transports, fed with good and broken input:
// XDR and record marking, HiSLIP framing, and the fault layer's rewriting of
// replies.

#include "transport/faults.h"
#include "transport/hislipmessage.h"
#include "transport/oncrpc.h"
#include "transport/session.h"

#include <QEventLoop>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

TEST(Xdr, ReaderFailsCleanlyPastTheEnd)
{
    // The reader keeps a view, so the bytes must outlive it.
    const QByteArray shortOpaque("\0\0\0\x05"
                                 "abc",
                                 7); // opaque of 5 with 3 bytes behind it
    XdrReader in(shortOpaque);
    EXPECT_TRUE(in.opaque().isEmpty());
    EXPECT_FALSE(in.ok());
    EXPECT_EQ(in.u32(), 0u);

    const QByteArray hugeLength("\xff\xff\xff\xff", 4);
    XdrReader huge(hugeLength);
    huge.opaque();
    EXPECT_FALSE(huge.ok());
}

TEST(Xdr, OpaqueIsPaddedToFourAndReadsBack)
{
    const QByteArray encoded = XdrWriter().opaque("inst0").u32(7).data();
    EXPECT_EQ(encoded.size(), 4 + 8 + 4);
    XdrReader in(encoded);
    EXPECT_EQ(in.opaque(), "inst0");
    EXPECT_EQ(in.u32(), 7u);
    EXPECT_TRUE(in.ok());
}

TEST(RecordMarking, JoinsFragmentsAndRefusesGiantRecords)
{
    RecordReader reader(100);
    const QByteArray first = XdrWriter().u32(3).raw("abc").data();
    const QByteArray last = recordMarked("de");
    const QByteArray stream = first + last;
    for (char c : stream) { // a byte at a time: nothing before the whole record
        EXPECT_FALSE(reader.next());
        reader.append(QByteArray(1, c));
    }
    EXPECT_EQ(reader.next(), QByteArray("abcde"));

    reader.append(XdrWriter().u32(0x80000000u | 101).data());
    EXPECT_FALSE(reader.next());
    EXPECT_TRUE(reader.failed());
}

TEST(RpcCallParse, OnlyCallsWithWholeHeadersPass)
{
    bool versionOk = false;
    const QByteArray call = XdrWriter()
                                .u32(9)
                                .u32(0)
                                .u32(2)
                                .u32(100000)
                                .u32(2)
                                .u32(3)
                                .u32(1)
                                .opaque("cred")
                                .u32(0)
                                .u32(0)
                                .u32(42)
                                .data();
    const std::optional<RpcCall> parsed = parseRpcCall(call, &versionOk);
    ASSERT_TRUE(parsed);
    EXPECT_TRUE(versionOk);
    EXPECT_EQ(parsed->procedure, 3u);
    EXPECT_EQ(parsed->args, XdrWriter().u32(42).data());

    EXPECT_FALSE(parseRpcCall(call.left(30), &versionOk));
    EXPECT_FALSE(parseRpcCall(XdrWriter().u32(9).u32(1).data(), &versionOk)) << "a reply, not a call";
}

TEST(HislipFraming, CutsMessagesAndBreaksOnBadHeaders)
{
    hislip::Reader reader;
    const QByteArray two =
        hislip::encode(hislip::DataEnd, 0, 0xFFFFFF00, "*IDN?\n") + hislip::encode(hislip::Trigger, 0, 1);
    reader.append(two.left(20));
    EXPECT_FALSE(reader.next());
    reader.append(two.mid(20));
    EXPECT_EQ(reader.next()->payload, "*IDN?\n");
    EXPECT_EQ(reader.next()->type, hislip::Trigger);
    EXPECT_FALSE(reader.failed());

    hislip::Reader tooBig;
    QByteArray header = hislip::encode(hislip::Data, 0, 0);
    header[8] = 1; // 2^56 bytes of payload announced
    tooBig.append(header);
    EXPECT_FALSE(tooBig.next());
    EXPECT_TRUE(tooBig.failed());
}

struct BlockCase {
    QByteArray reply;
    QByteArray shortened;
};

class ShortenBlock : public ::testing::TestWithParam<BlockCase> {};

TEST_P(ShortenBlock, KeepsTheHeaderAndLosesHalfTheData)
{
    EXPECT_EQ(shortenBlock(GetParam().reply), GetParam().shortened);
}

INSTANTIATE_TEST_SUITE_P(Replies, ShortenBlock,
                         ::testing::Values(BlockCase{"#18abcdefgh\n", "#18abcd\n"},
                                           BlockCase{"#211abcdefghijk\n", "#211abcde\n"},
                                           BlockCase{"#13abc", "#13a"}, BlockCase{"#10\n", "#10\n"},
                                           BlockCase{"1.0E+00\n", "1.0E+00\n"}, BlockCase{"#", "#"},
                                           BlockCase{"#5", "#5"}));

// Runs the event loop until the condition holds or a second is over.
template <typename Condition> void runUntil(Condition done)
{
    QEventLoop loop;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        if (done()) loop.quit();
    });
    poll.start(5);
    QTimer::singleShot(1000, &loop, &QEventLoop::quit);
    loop.exec();
}

class FaultySession : public ::testing::Test {
  protected:
    // An instrument that echoes every query with a "!".
    static std::unique_ptr<Faults> faultsWith(FaultOptions options)
    {
        auto echo = [](const QByteArray& line) { return line.endsWith('?') ? line + "!\n" : QByteArray(); };
        return std::make_unique<Faults>(echo, options);
    }

    void attach(Session& session)
    {
        QObject::connect(&session, &Session::replyReady, [this](const QByteArray& r) { replies.append(r); });
        QObject::connect(&session, &Session::dropRequested, [this] { dropped = true; });
    }

    QList<QByteArray> replies;
    bool dropped = false;
};

TEST_F(FaultySession, SilenceMatchesWholeLinesOrHeadersWhateverTheCase)
{
    FaultOptions options;
    options.silent = {"*idn?", ":WAVEFORM:SCREENDATA?"};
    const auto f = faultsWith(options);
    EXPECT_TRUE(f->answer(" *IDN? ").isEmpty());
    EXPECT_TRUE(f->answer(":waveform:screendata? CHANNEL2").isEmpty());
    EXPECT_EQ(f->answer(":WAVEFORM:SCREENDATA2?"), ":WAVEFORM:SCREENDATA2?!\n");
}

TEST_F(FaultySession, ShortBlocksAndGarbageRewriteTheReply)
{
    FaultOptions options;
    options.shortBlocks = true;
    EXPECT_EQ(faultsWith(options)->answer("#16abcd?"), "#16abc\n") << "the echo \"#16abcd?!\" is a block";
    options.shortBlocks = false;
    options.garbage = true;
    const QByteArray reply = faultsWith(options)->answer("*IDN?");
    ASSERT_EQ(reply.size(), 7);
    EXPECT_NE(reply, "*IDN?!\n");
    EXPECT_EQ(reply.indexOf('\n'), 6) << "noise of the same length, then the line feed";
}

TEST_F(FaultySession, DropAfterAnswersNThenRefusesAndForgetsTheRest)
{
    FaultOptions options;
    options.dropAfter = 2;
    const auto f = faultsWith(options);
    Session session(*f);
    attach(session);
    session.receive("A?\nB\n\n");
    EXPECT_FALSE(dropped) << "a blank line is not a command";
    session.receive("C?\nD?\n");
    EXPECT_TRUE(dropped);
    EXPECT_EQ(replies, QList<QByteArray>{"A?!\n"});
    session.receive("E?\n");
    EXPECT_EQ(replies.size(), 1);
}

TEST_F(FaultySession, DelayedRepliesKeepTheirOrderAndClearForgetsThem)
{
    FaultOptions options;
    options.delayMs = 30;
    const auto f = faultsWith(options);
    Session session(*f);
    attach(session);
    session.receive("A?\nB?\n");
    EXPECT_TRUE(replies.isEmpty());
    runUntil([&] { return replies.size() == 2; });
    EXPECT_EQ(replies, (QList<QByteArray>{"A?!\n", "B?!\n"}));

    session.receive("C?\n");
    session.clear();
    runUntil([] { return false; });
    EXPECT_EQ(replies.size(), 2);
}

TEST_F(FaultySession, EndOfMessageEndsALineWithoutLineFeed)
{
    const auto f = faultsWith({});
    Session session(*f);
    attach(session);
    session.receive("A", false);
    session.receive("?", true);
    EXPECT_EQ(replies, QList<QByteArray>{"A?!\n"});
}

} // namespace
