#include "wave/wavelayout.h"

#include "wave/wavecanvas.h"
#include "wave/wavezoom.h"

#include <algorithm>
#include <cmath>

namespace {

QSize innerOf(const QRect& pane, int frame)
{
    return {std::max(0, pane.width() - 2 * frame), std::max(0, pane.height() - 2 * frame)};
}

// Shows a bar along the pane's right or bottom edge where the picture is larger
// than the pane, shrinking the pane to make room for it.
void placeScrollBars(WaveViewLayout& layout, QSize picture, const WaveViewInput& input)
{
    const QSize inner = innerOf(layout.pane, input.paneFrame);
    layout.hScrollShown = picture.width() > inner.width();
    layout.vScrollShown = picture.height() > inner.height();
    if (layout.hScrollShown) layout.pane.setHeight(std::max(0, layout.pane.height() - ScrollBarRoom));
    if (layout.vScrollShown) layout.pane.setWidth(std::max(0, layout.pane.width() - ScrollBarRoom));
    const QRect& pane = layout.pane;
    layout.hScroll = QRect(pane.left(), pane.top() + pane.height(), pane.width(), ScrollBarWidth);
    layout.vScroll = QRect(pane.left() + pane.width(), pane.top(), ScrollBarWidth, pane.height());
    const QSize shrunk = innerOf(pane, input.paneFrame);
    if (layout.hScrollShown) layout.hScrollUnit = (picture.width() - shrunk.width()) / 100.0;
    if (layout.vScrollShown) layout.vScrollUnit = (picture.height() - shrunk.height()) / 100.0;
}

} // namespace

QSize PictureSizeAt(double zoom)
{
    return {int(std::lround(PictureWidth * zoom)), int(std::lround(PictureHeight * zoom))};
}

double BestFitZoom(QSize paneInner)
{
    const double f = std::min(paneInner.width() / PictureWidth, paneInner.height() / PictureHeight);
    return LimitZoom(f);
}

QPoint ProgressStripPlace(QPoint picture, double zoom, QSize strip)
{
    const double left = picture.x() + GridMargin + GridWidth * zoom - strip.width() + 7;
    const double top = picture.y() + GridMargin - strip.height() - 1;
    return {int(std::lround(left)), int(std::lround(top))};
}

QPoint ScrolledPicturePlace(int hValue, int vValue, double hUnit, double vUnit)
{
    return {-int(std::lround(hValue * hUnit)), -int(std::lround(vValue * vUnit))};
}

WaveViewLayout LayoutWaveView(const WaveViewInput& input)
{
    WaveViewLayout layout;
    layout.zoom = input.zoom;
    layout.pane = input.currentPane;
    const int width = input.inner.width() - input.paneLeft;
    const int height = input.inner.height() - PaneTop;
    if (width >= 0 && height >= 0) {
        layout.pane = QRect(input.paneLeft, PaneTop, width, height);
        layout.paneMoved = true;
    }
    if (input.bestFit) {
        layout.zoom = BestFitZoom(innerOf(layout.pane, input.paneFrame));
        layout.picture = PictureSizeAt(layout.zoom);
    } else if (!input.firstRun && layout.paneMoved) {
        layout.picture = PictureSizeAt(input.zoom);
        placeScrollBars(layout, *layout.picture, input);
    } else if (!input.firstRun) {
        layout.picture = PictureSizeAt(input.zoom);
    }
    return layout;
}
