#include "support/main_window.h"

#include "calendar/frm_main.h"
#include "calendar/frm_program.h"
#include "foundation/frm_login.h"
#include "platform/clock.h"
#include "platform/controls/flex_grid.h"

#include <QAction>
#include <QApplication>
#include <QMouseEvent>
#include <QTest>

MainUser::MainUser() = default;
MainUser::~MainUser() = default;

frmMain& MainUser::OpensMain(const QString& loginID)
{
    WhenOpens<frmLogin>([this, loginID](frmLogin&) {
        Types("txtUserName", loginID).Types("txtPassword", loginID == "ADMIN" ? "SECRET" : "PASS").Clicks("cmdOK");
    });
    program_ = std::make_unique<Program>();
    program_->Start();
    while (!program_->Main())
        QCoreApplication::processEvents();
    program_->Main()->timAbsence_Timer();
    Works(*program_->Main());
    return *program_->Main();
}

MainUser& MainUser::ChoosesMenu(const QString& entry)
{
    program_->Main()->findChild<QAction*>(entry)->trigger();
    return *this;
}

MainUser& MainUser::ClicksDay(const QDate& date)
{
    auto* calendar = program_->Main()->findChild<FlexGrid*>("flxCalendar");
    const QPoint place = program_->Main()->Calendar().PlaceOf(SerialOfDate(date));
    QTest::mouseClick(calendar->viewport(), Qt::LeftButton, {}, calendar->CellRect(place.y(), place.x()).center());
    return *this;
}

MainUser& MainUser::MovesMouseOver(const QString& control)
{
    auto* widget = program_->Main()->findChild<QWidget*>(control);
    const QPointF place(5, 5);
    QMouseEvent move(QEvent::MouseMove, place, widget->mapToGlobal(place), Qt::NoButton, Qt::NoButton, {});
    QCoreApplication::sendEvent(widget, &move);
    return *this;
}
