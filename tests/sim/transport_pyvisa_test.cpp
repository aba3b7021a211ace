// An independent VISA client against the simulator: Debian's pyvisa with its
// pure-Python backend, over the raw socket and over VXI-11. VXI-11 needs the
// portmapper on its standard port 111; the check skips when that or the
// client is not available on this machine.

#include "wireclient.h"

#include <QFileInfo>
#include <QProcess>
#include <gtest/gtest.h>

namespace {

constexpr int kSkipped = 77;
const QString kPython = "/usr/bin/python3"; // Debian's interpreter sees Debian's Python packages

TEST(PyvisaClient, ReadsIdentityAndBlockOverSocketAndVxi11)
{
    if (!QFileInfo(kPython).isExecutable()) GTEST_SKIP() << "no Debian python3";
    SimProcess sim(SELVANE_SIM_PATH);
    if (!sim.start({"--idn", kTestIdn, "--portmapper-port", "111"}))
        GTEST_SKIP() << "port 111 is not available for the portmapper: " << sim.errorString().toStdString();

    QProcess check;
    check.setProcessChannelMode(QProcess::MergedChannels);
    check.start(kPython, {QString(SELVANE_TEST_DATA) + "/sim/pyvisa_check.py", "--socket-port",
                          QString::number(sim.port("socket")), "--idn", kTestIdn, "--instr"});
    ASSERT_TRUE(check.waitForFinished(30000));
    const QString output = QString::fromUtf8(check.readAll());
    if (check.exitCode() == kSkipped) GTEST_SKIP() << output.toStdString();
    EXPECT_EQ(check.exitCode(), 0) << output.toStdString();
}

} // namespace
