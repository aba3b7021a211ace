#pragma once
// The help viewer: the manual of the language in force in a window of its own,
// with Back, Forward, Home and Contents. One viewer at a time; F1 raises it.

#include <QString>
#include <QWidget>

class QPushButton;
class QTextBrowser;

class frmHelp : public QWidget {
    Q_OBJECT
  public:
    explicit frmHelp(QWidget* parent = nullptr);

    // Opens the manual whose entry page is path at its start; the same manual
    // stays where the reader left it.
    void ShowManual(const QString& path);
    QString manual() const { return manual_; }
    QTextBrowser* browser() const { return txtHelp; }
    void SetCaptions(int language);

    void cmdHome_Click();
    void cmdContents_Click();

  private:
    void followTitle();

    QPushButton* cmdBack;
    QPushButton* cmdForward;
    QPushButton* cmdHome;
    QPushButton* cmdContents;
    QTextBrowser* txtHelp;
    QString manual_;
    int language_ = 1;
};

// The viewer that is open, or null.
frmHelp* HelpWindow();

// Shows the help of a language in the viewer, made as a window of parent's when
// none is open. A file that can't be read shows the failure's own description
// in a box. Returns whether the viewer took the file.
bool OpenHelpFile(int language, QWidget* parent = nullptr);
