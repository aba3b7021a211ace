#pragma once
// Connecting to the instrument: open the transport, ask who it is, refuse what
// isn't a supported model with new enough firmware, and light the lamp.

// Connected tells the outcome. A refusal for old firmware leaves Connecting
// set (the transport routines stay open) and the lamp as it was, until the
// next ConnectDevice.
void ConnectDevice();
// When connected: releases the front panel's key lock, turns the lamp off and
// closes the VISA session (on either transport; the serial port stays open).
void DisconnectDevice();
