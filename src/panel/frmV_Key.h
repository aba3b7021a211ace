#pragma once
// The virtual keyboard: the instrument's front-panel keys without its screen.

#include <QWidget>

class KeySetWidgets;

class frmV_Key : public QWidget {
  public:
    explicit frmV_Key(QWidget* parent = nullptr);
    ~frmV_Key() override;

    KeySetWidgets& keys() { return *keys_; }
    void SetCaptions(int language);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    KeySetWidgets* keys_;
};
