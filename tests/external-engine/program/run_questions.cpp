// SPDX-FileCopyrightText: 2026 The EnvCheck authors
// SPDX-License-Identifier: MIT
// Ends the session before, during and after the early-close question, for every kind of question
// box, and prints what was seen as a table.
#include "Journal.h"
#include "QuestionBox.h"

#include "agent/EnvCheckAgent.h"

#include <CoreEngine/CoreEngine.h>

#include <QApplication>
#include <QPointer>
#include <QStackedWidget>
#include <QTextStream>
#include <QTimer>
#include <cstdlib>

namespace {

enum class Moment { Before, WhileOpen, WithYes, AfterNo };

struct KindRow
{
    const char* name;
    QuestionBox::Kind kind;
};

const QVector<KindRow> Kinds = {
    {"dialog below the frame", QuestionBox::Kind::DialogBelowFrame},
    {"dialog below the frame's window", QuestionBox::Kind::DialogBelowWindow},
    {"dialog without a parent", QuestionBox::Kind::DialogAlone},
    {"plain window below the frame", QuestionBox::Kind::WindowBelowFrame},
    {"plain window without a parent", QuestionBox::Kind::WindowAlone},
    {"event loop, no window", QuestionBox::Kind::NothingShown},
};

QStringList toldLines()
{
    return journal().filter(QStringLiteral("setting")) + journal().filter(QStringLiteral("post "));
}

void endSession()
{
    Q_EMIT LumEngine::CoreEngine::instance()->signalBasicBreakdown();
}

} // namespace

// One run of the check, with the session ended at one moment.
class Trial : public QObject
{
    Q_OBJECT

public:
    Trial(QuestionBox::Kind kind, Moment moment) : m_moment(moment)
    {
        m_box.reset(kind, moment == Moment::AfterNo ? QMessageBox::No : QMessageBox::Yes);
        journal().clear();
    }

    QString run()
    {
        QTimer::singleShot(0, this, &Trial::leave);
        EnvCheckAgent::instance()->showEnvCheck(nullptr);
        QStringList faults;
        faults += m_isGoneAtSignal ? QString() : QStringLiteral("FRAME STAYS");
        faults += m_wasAliveAtAnswer ? QString() : QStringLiteral("DELETED TOO EARLY");
        faults += m_frame ? QStringLiteral("NOT DELETED") : QString();
        faults += toldLines();
        faults.removeAll(QString());
        return faults.isEmpty() ? m_seen : faults.join(QStringLiteral(", "));
    }

private Q_SLOTS:
    void onCloseDialog()
    {
        m_isGoneAtSignal = m_frame->isHidden() && m_shownPage->isHidden() && toldLines().isEmpty();
    }

private:
    void leave()
    {
        m_frame = QApplication::activeModalWidget()->findChild<QWidget*>("selfcheckContentPage");
        m_shownPage = m_frame->findChild<QStackedWidget*>("stackedWidget")->currentWidget();
        connect(m_frame, SIGNAL(closeDialog()), this, SLOT(onCloseDialog()));
        m_seen = QStringLiteral("gone");
        m_box.whileOpen = [this] { Q_EMIT m_box.answered(); };
        if (m_moment == Moment::Before) {
            endSession();
        } else if (m_moment == Moment::WhileOpen) {
            m_box.whileOpen = [this] { endWhileOpen(); };
        } else if (m_moment == Moment::WithYes) {
            m_box.beforeAnswer = endSession;
        }
        m_frame->close();
        if (m_moment == Moment::AfterNo) {
            endSession();
        }
        m_seen += m_box.asked == 0 ? QStringLiteral(", not asked") : QString();
    }

    void endWhileOpen()
    {
        const bool wasShown = m_box.isShown();
        endSession();
        if (wasShown) {
            m_seen +=
                m_box.isShown() ? QStringLiteral(", box stays") : QStringLiteral(", box closed");
        }
        // Answered late, so that the box's loop could delete what it shouldn't.
        QTimer::singleShot(20, this, [this] {
            m_wasAliveAtAnswer = m_frame || !m_box.isOpen();
            Q_EMIT m_box.answered();
        });
    }

    QuestionBox& m_box = QuestionBox::instance();
    Moment m_moment;
    QPointer<QWidget> m_frame;
    QPointer<QWidget> m_shownPage;
    QString m_seen;
    bool m_isGoneAtSignal = false;
    bool m_wasAliveAtAnswer = true;
};

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QTextStream out(stdout);
    out << "| question box | before it | while it is open | with its Yes | after its No |\n"
        << "|---|---|---|---|---|\n";
    for (const KindRow& row : Kinds) {
        out << "| " << row.name;
        for (Moment moment :
             {Moment::Before, Moment::WhileOpen, Moment::WithYes, Moment::AfterNo}) {
            QTimer watchdog;
            QObject::connect(&watchdog, &QTimer::timeout, &watchdog, [&row, moment] {
                QTextStream(stderr) << row.name << ", moment " << int(moment) << ": no end\n";
                std::_Exit(1);
            });
            watchdog.start(10000);
            out << " | " << Trial(row.kind, moment).run();
        }
        out << " |\n";
    }
    EnvCheckAgent::release();
    return 0;
}

#include "run_questions.moc"
