#pragma once
// A progress line on stderr for the long jobs ("download  42%"), redrawn in
// place and ended with a line feed; nothing when stderr is not a terminal, so
// logs and pipes stay clean.

#include "acquire/operation.h"

#include <QByteArray>

class ProgressLine {
  public:
    explicit ProgressLine(const char* label);
    ~ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    void show(int percent);
    // Ends the line so that a message can follow; the next show starts a new one.
    void interrupt();

  private:
    QByteArray label_;
    bool terminal_ = false;
    bool open_ = false;
    int shown_ = -1;
};

// The reading frame's bar drawn as a progress line while the object lives.
class ProgressLineView : public ProgressView {
  public:
    explicit ProgressLineView(const char* label);
    ~ProgressLineView() override;

    void setTimer2Enabled(bool) override {}
    void setBarValue(double value) override { value_ = value; }
    double barValue() const override { return value_; }
    double barMaximum() const override { return 100; }
    void refresh() override { line_.show(int(value_)); }

  private:
    ProgressLine line_;
    double value_ = 0;
};
