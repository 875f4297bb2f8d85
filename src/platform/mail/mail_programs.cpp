#include "platform/mail/mail_programs.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryFile>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <csignal>
#include <memory>
#include <unistd.h>

int MailPatience = 15'000;

namespace
{
constexpr int kLongestReason = 500;
constexpr int kWindowPatience = 3000; // of a mail window, which may stay open, before the program goes on
constexpr int kSignalBase = 128;      // a program ended by signal n counts as ended with 128 + n, as a shell has it

using Process = std::unique_ptr<QProcess>;

QString FindProgram(const QString& name)
{
    const QString found = QStandardPaths::findExecutable(name);
    return !found.isEmpty() || name != "sendmail"
               ? found
               : QStandardPaths::findExecutable(name, {"/usr/sbin", "/usr/lib", "/usr/local/sbin"});
}

MailResult NotThere(const QString& name)
{
    return {MailError::NoProgram, "There is no such program on this workstation: " + name};
}

/// In a group of its own, so that it can be ended with all that it has started.
Process MakeProcess()
{
    auto process = std::make_unique<QProcess>();
    process->setChildProcessModifier([] { ::setpgid(0, 0); });
    return process;
}

/// Starts the program and lets the event loop go on until it ends; false when it still works after `patience`.
bool HasEnded(QProcess& process, const QString& program, const QStringList& arguments, int patience,
              const QByteArray& input = {})
{
    const MailOnItsWay onItsWay;
    QEventLoop waiting;
    QObject::connect(&process, &QProcess::stateChanged, &waiting, [&waiting](QProcess::ProcessState state) {
        if (state == QProcess::NotRunning)
            waiting.quit();
    });
    QTimer::singleShot(patience, &waiting, &QEventLoop::quit);
    process.start(program, arguments);
    if (!input.isEmpty())
        process.write(input);
    process.closeWriteChannel();
    if (process.state() != QProcess::NotRunning)
        waiting.exec(QEventLoop::ExcludeUserInputEvents);
    return process.state() == QProcess::NotRunning;
}

MailResult ResultOf(const QProcess& process, const QByteArray& said)
{
    const QString name = QFileInfo(process.program()).fileName();
    if (process.error() == QProcess::FailedToStart)
        return {MailError::NoProgram, name + ": " + process.errorString()};
    const bool crashed = process.exitStatus() == QProcess::CrashExit;
    const int code = process.exitCode() + (crashed ? kSignalBase : 0);
    if (code == 0)
        return {};
    const QString reason = QString::fromUtf8(said).simplified().left(kLongestReason);
    return {code, reason.isEmpty() ? QStringLiteral("%1 ended with code %2").arg(name).arg(code) : reason};
}

void End(QProcess& process)
{
    if (const auto group = static_cast<pid_t>(process.processId()); group > 0)
        ::kill(-group, SIGKILL);
    process.waitForFinished(1000);
}

MailResult Sendmail(const MailMessage& message)
{
    if (const MailResult fault = FaultIn(message); fault.Number != 0)
        return fault;
    const QString program = FindProgram("sendmail");
    if (program.isEmpty())
        return NotThere("sendmail");
    const Process process = MakeProcess();
    process->setProcessChannelMode(QProcess::MergedChannels);
    if (HasEnded(*process, program, {"-t", "-i"}, MailPatience, MimeText(message)))
        return ResultOf(*process, process->readAll());
    End(*process);
    return {MailError::NoAnswer, "The mail program does not answer"};
}

QString Encoded(const QString& text)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(text, "@"));
}

QStringList ComposeArguments(const MailMessage& message)
{
    QString body = message.Body;
    body.replace("\r\n", "\n").replace('\r', '\n').replace("\n", "\r\n");
    QStringList arguments{QStringLiteral("mailto:%1?subject=%2&body=%3")
                              .arg(Encoded(BareAddress(message.Address)), Encoded(message.Subject), Encoded(body))};
    if (!message.Attachment.isEmpty())
        arguments << "--attach" << QFileInfo(message.Attachment).absoluteFilePath();
    return arguments;
}

/// The user still writes: his window outlives this program, so nothing owns the process, whose end would kill it.
void LeaveOpen(Process process)
{
    QObject::connect(process.get(), &QProcess::finished, process.get(), &QObject::deleteLater);
    process.release();
}

MailResult Compose(const MailMessage& message)
{
    if (const MailResult fault = FaultIn(message); fault.Number != 0)
        return fault;
    const QString program = FindProgram("xdg-email");
    if (program.isEmpty())
        return NotThere("xdg-email");
    QTemporaryFile said;
    said.open();
    Process process = MakeProcess();
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(said.fileName());
    if (HasEnded(*process, program, ComposeArguments(message), std::min(MailPatience, kWindowPatience)))
        return ResultOf(*process, said.readAll());
    LeaveOpen(std::move(process));
    return {0, "The mail program stays open"};
}

MailRoutes& Routes()
{
    static MailRoutes routes;
    return routes;
}
} // namespace

const MailRoutes& MailRoutesHere()
{
    static const MailRoutes own{{[] { return !FindProgram("sendmail").isEmpty(); }, Sendmail},
                                {[] { return !FindProgram("xdg-email").isEmpty(); }, Compose}};
    return Routes().Automation.Send ? Routes() : own;
}

void SetMailRoutes(const MailRoutes& routes)
{
    Routes() = routes;
}
