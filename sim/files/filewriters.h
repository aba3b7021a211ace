#pragma once
// The simulator's file subcommands: the instrument, freshly powered on and
// set up by its own commands, stores its waveform (.wfm) or record (.rcd).
//
//   write-wfm OUT.wfm [--alternation] [--peak] [--roll] [--long-memory]
//   write-rcd OUT.rcd [--frames N] [--second-block]
//
// `args` is what follows the subcommand. Returns 0 when the file was
// written; otherwise says why on stderr and returns non-zero.

#include <QStringList>

int runWriteWfm(const QStringList& args);
int runWriteRcd(const QStringList& args);
