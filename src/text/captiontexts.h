#pragma once
// The caption lists as kept, per list: both languages and, where the two lists do
// not run parallel, the slot pairing. Read through captions.h.

#include "text/captions.h"

#include <QList>

struct CaptionData {
    QStringList english;
    QStringList chinese;
    QList<CaptionPair> pairs; // empty: the two lists run parallel
};

CaptionData MakeCaptionData(CaptionList which);
