#pragma once
// The words of the command language for each kind of setting: what the
// instrument answers, and every spelling it takes.

#include "model/simstate.h"

#include <QByteArray>
#include <optional>
#include <span>

template <typename E> struct Keyword {
    E value;
    const char* reply;    // what a query answers
    const char* accepted; // the spellings a command takes, upper case, '|' between
};

template <typename E> using KeywordTable = std::span<const Keyword<E>>;

bool keywordAccepts(const char* accepted, const QByteArray& upperWord);

template <typename E> std::optional<E> findKeyword(KeywordTable<E> table, const QByteArray& upperWord)
{
    for (const Keyword<E>& keyword : table) {
        if (keywordAccepts(keyword.accepted, upperWord)) return keyword.value;
    }
    return std::nullopt;
}

template <typename E> QByteArray keywordText(KeywordTable<E> table, E value)
{
    for (const Keyword<E>& keyword : table) {
        if (keyword.value == value) return keyword.reply;
    }
    return {};
}

namespace Keywords {
KeywordTable<TimeFormat> timeFormat();
KeywordTable<TriggerType> triggerType();
KeywordTable<TriggerType> altTriggerType();
KeywordTable<TriggerSource> triggerSource();
KeywordTable<Sweep> sweep();
KeywordTable<ChannelCoupling> channelCoupling();
KeywordTable<TriggerCoupling> triggerCoupling();
KeywordTable<EdgeSlope> edgeSlope();
KeywordTable<PulseMode> pulseMode();
KeywordTable<bool> polarity();
KeywordTable<VideoSync> videoSync();
KeywordTable<VideoStandard> videoStandard();
KeywordTable<SlopeWindow> slopeWindow();
KeywordTable<Qualifier> qualifier();
KeywordTable<AcquireType> acquireType();
KeywordTable<bool> samplingMode(); // true: equivalent time
KeywordTable<bool> displayType();  // true: vectors
KeywordTable<GridType> grid();
KeywordTable<MathOperation> mathOperation();
KeywordTable<FftWindow> fftWindow();
} // namespace Keywords

// The thirteen probe ratios and their texts ("0.001X" ... "1000X").
std::optional<double> probeRatio(const QByteArray& upperText);
QByteArray probeText(double ratio);

// "CHANNEL1", "CH1", "CHAN1" and "1" give 0; anything else nothing.
std::optional<int> channelWord(const QByteArray& upperWord);
