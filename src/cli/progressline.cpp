#include "cli/progressline.h"

#include <algorithm>
#include <cstdio>
#include <unistd.h>

ProgressLine::ProgressLine(const char* label) : label_(label), terminal_(::isatty(STDERR_FILENO) == 1) {}

ProgressLine::~ProgressLine()
{
    interrupt();
}

void ProgressLine::show(int percent)
{
    percent = std::clamp(percent, 0, 100);
    if (!terminal_ || (open_ && percent == shown_)) return;
    std::fprintf(stderr, "\r%s %3d%%", label_.constData(), percent);
    std::fflush(stderr);
    open_ = true;
    shown_ = percent;
}

void ProgressLine::interrupt()
{
    if (!open_) return;
    std::fputc('\n', stderr);
    open_ = false;
}

ProgressLineView::ProgressLineView(const char* label) : line_(label)
{
    SetProgressView(this);
}

// The frame's bar stops short of its end; the job is done all the same.
ProgressLineView::~ProgressLineView()
{
    line_.show(100);
    SetProgressView(nullptr);
}
