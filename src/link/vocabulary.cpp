#include "link/vocabulary.h"

namespace Vocab {

namespace {

void append(QString& text, QAnyStringView piece)
{
    text += piece.toString();
}

} // namespace

QString AsPiece(QAnyStringView word)
{
    return u':' + word.toString();
}

QString Join(Pieces pieces)
{
    QString text;
    for (QAnyStringView piece : pieces)
        append(text, piece);
    return text;
}

QString Query(Pieces pieces, QAnyStringView parameter)
{
    QString text = Join(pieces) + u'?';
    if (!parameter.isEmpty()) append(text += u' ', parameter);
    return text;
}

QString SetCommand(Pieces pieces, QAnyStringView value)
{
    QString text = Join(pieces) + u' ';
    append(text, value);
    return text;
}

QString KeyCommand(QAnyStringView key)
{
    return Join({Piece::Key, key});
}

QString KeyLockCommand(bool locked)
{
    return Join({Piece::Key, Piece::Lock, locked ? Word::Enable : Word::Disable});
}

QString PatternLevelCommand(QAnyStringView channel, QAnyStringView level)
{
    return SetCommand({Piece::Trigger, AsPiece(Word::Pattern), Piece::Level}, Join({channel, u",", level}));
}

bool IsChannelPair(QStringView text)
{
    static const QString spellings[] = {
        QStringLiteral("CH1CH2"), QStringLiteral("CHAN1CHAN2"), QStringLiteral("CHANNEL1CHANNEL2"),
        QStringLiteral("CH3CH4"), QStringLiteral("CHAN3CHAN4"), QStringLiteral("CHANNEL3CHANNEL4"),
    };
    const QString upper = text.toString().toUpper();
    for (const QString& spelling : spellings)
        if (upper == spelling) return true;
    return false;
}

} // namespace Vocab
