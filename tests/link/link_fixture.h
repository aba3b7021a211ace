#pragma once
// The link's unit tests run over the scripted VISA library.

#include "support/fakevisa.h"

using LinkTest = FakeVisaTest;
