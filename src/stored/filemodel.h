#pragma once
// The model name in the header of the instrument's own files (.wfm and .rcd):
// copied, tested and turned into the bandwidth code that picks the fastest
// time steps of the memory view.

#include <QByteArray>
#include <QString>

// `Model` at `offset`: at most 20 characters, up to the first NUL.
QString ReadFileModel(const QByteArray& bytes, qsizetype offset);

// A model is accepted only when it has at least 7 characters and exactly "B"
// from the seventh on ("KV7202B" passes; "KV7202" and "KV7202BX" do not).
bool FileModelAccepted(const QString& model);

// Characters 4 and 5 of the model as a number: 6 gives 2, 10 gives 3, 20
// gives 4; any other number leaves `code` as it was.
void ApplyModelBandwidthCode(const QString& model, int& code);
