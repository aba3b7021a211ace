// A user's pyvisa script (Debian's pyvisa through /usr/bin/python3) on our
// shared library against the simulator. Skipped only when that interpreter
// cannot import pyvisa.
#include "simprocess.h"

#include <QProcess>
#include <gtest/gtest.h>

namespace {

constexpr char kPython[] = "/usr/bin/python3";
constexpr char kIdn[] = "Korva Technologies,KV7204B,KV7204T0007,00.03.03.SP1";

TEST(Pyvisa, QueryAndBlockReadRunUnchangedOnOurLibrary)
{
    QProcess probe;
    probe.start(kPython, {"-c", "import pyvisa"});
    if (!probe.waitForFinished(30000) || probe.exitStatus() != QProcess::NormalExit || probe.exitCode() != 0)
        GTEST_SKIP() << kPython << " cannot import pyvisa";
    SimProcess sim(SELVANE_SIM_PATH);
    ASSERT_TRUE(sim.start({"--idn", kIdn})) << sim.errorString().toStdString();

    QProcess python;
    python.setProcessChannelMode(QProcess::MergedChannels);
    python.start(kPython, {SELVANE_TEST_DATA "/visa/data/pyvisa_session.py", SELVANE_VISA_SHARED_PATH,
                           "TCPIP0::127.0.0.1::" + QString::number(sim.port("socket")) + "::SOCKET"});
    ASSERT_TRUE(python.waitForFinished(120000)) << "pyvisa script hung";
    const QString output = QString::fromUtf8(python.readAll());
    EXPECT_EQ(python.exitCode(), 0) << output.toStdString();
    EXPECT_EQ(output.trimmed(), QString(kIdn) + " 600");
}

} // namespace
