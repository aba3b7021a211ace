#pragma once
// The two routines all traffic with the instrument goes through. Both do
// nothing unless Connected or Connecting is set.

#include <QString>

// Sends the command on the active transport, then waits 100 ms whatever
// happened: the pause gives the instrument time to act, and paces uploads.
void WriteCmd(const QString& command);
// Sends the query and returns the reply as it came (over VISA with its line
// feed). No pause.
QString AskCmd(const QString& query);
