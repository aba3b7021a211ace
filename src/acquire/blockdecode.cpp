#include "acquire/blockdecode.h"

#include "acquire/wavebytes.h"
#include "link/visablocks.h"

static_assert(ParameterBlockSize == int(WaveParameterSize));

bool UsbReadScreen(int& sampleCount)
{
    return UsbReadScreenBytes(WaveBytes, sampleCount);
}

QString UsbReadParameter(WaveParameter& target)
{
    QByteArray block;
    if (!UsbReadParameterBytes(block)) return {};
    WaveParameter decoded;
    Lindquay(reinterpret_cast<const unsigned char*>(block.constData()), &decoded);
    target = decoded;
    return QString::number(double(decoded.f32FFTHorizOffset), 'g', 7).trimmed();
}
