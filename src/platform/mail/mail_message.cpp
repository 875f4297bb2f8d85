#include "platform/mail/mail_message.h"

#include "platform/clock.h"

#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QRegularExpression>
#include <QSysInfo>

#include <memory>

#undef signals // a keyword of Qt, and a name in the library
#include <gmime/gmime.h>

namespace
{
constexpr int kPlainSubject = 60; // longest one that fits its line as it is
constexpr int kBytesInAWord = 39; // of an encoded word, so that it fits a line of 76
constexpr int kLongestAddress = 254;

struct Unref
{
    void operator()(gpointer object) const { g_object_unref(object); }
};
template <typename Object>
using Held = std::unique_ptr<Object, Unref>;

QString OnOneLine(QString text)
{
    static const QRegularExpression controls(QStringLiteral("[\\x00-\\x1f\\x7f\\x85\\x{2028}\\x{2029}]"));
    return text.replace(controls, QStringLiteral(" "));
}

/// Whatever stands in encoded words stays inside them, every blank included.
QByteArray EncodedWords(const QString& text)
{
    QByteArrayList words;
    QByteArray word;
    const auto close = [&] {
        words << "=?UTF-8?B?" + word.toBase64() + "?=";
        word.clear();
    };
    for (const uint letter : text.toUcs4()) {
        const auto code = static_cast<char32_t>(letter);
        const QByteArray bytes = QString::fromUcs4(&code, 1).toUtf8();
        if (word.size() + bytes.size() > kBytesInAWord)
            close();
        word += bytes;
    }
    close();
    return words.join("\n ");
}

QByteArray SubjectText(const QString& subject)
{
    static const QRegularExpression plain(QStringLiteral("^[!-~](?:[ -~]*[!-~])?$"));
    const QString line = OnOneLine(subject);
    if (line.isEmpty())
        return {};
    const bool asItIs = line.size() <= kPlainSubject && plain.match(line).hasMatch() && !line.contains("=?");
    return asItIs ? line.toLatin1() : EncodedWords(line);
}

/// A header whose value is encoded already.
void SetHeader(GMimeMessage* message, const char* name, const QByteArray& value)
{
    GMimeHeaderList* headers = g_mime_object_get_header_list(GMIME_OBJECT(message));
    g_mime_header_list_set(headers, name, "", nullptr);
    const QByteArray raw = " " + value + "\n";
    g_mime_header_set_raw_value(g_mime_header_list_get_header(headers, name), raw.constData());
}

/// Name and address; what looks encoded in the name is encoded once more, so that it reads as it was typed.
QByteArray PersonText(const QString& name, const QString& address)
{
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z0-9 ]{1,60}$"));
    const QString shown = OnOneLine(name).simplified();
    const QByteArray bare = BareAddress(address).toLatin1();
    if (shown.isEmpty())
        return bare;
    return (plain.match(shown).hasMatch() ? shown.toLatin1() : EncodedWords(shown)) + "\n <" + bare + ">";
}

void SetOrigin(GMimeMessage* message, const MailMessage& of)
{
    static const QRegularExpression unusual(QStringLiteral("[^A-Za-z0-9.-]"));
    const std::unique_ptr<GDateTime, decltype(&g_date_time_unref)> moment(
        g_date_time_new_from_unix_local(CurrentDateTime().toSecsSinceEpoch()), &g_date_time_unref);
    g_mime_message_set_date(message, moment.get());
    const QString host = QSysInfo::machineHostName().remove(unusual);
    const std::unique_ptr<char, decltype(&g_free)> id(
        g_mime_utils_generate_message_id(host.isEmpty() ? "localhost" : host.toLatin1().constData()), &g_free);
    g_mime_message_set_message_id(message, id.get());
    if (IsMailAddress(BareAddress(of.SenderAddress)))
        SetHeader(message, "From", PersonText(of.SenderName, of.SenderAddress));
}

void SetContent(GMimePart* part, const QByteArray& bytes, GMimeContentEncoding encoding)
{
    const Held<GMimeStream> stream(
        g_mime_stream_mem_new_with_buffer(bytes.constData(), static_cast<std::size_t>(bytes.size())));
    const Held<GMimeDataWrapper> content(
        g_mime_data_wrapper_new_with_stream(stream.get(), GMIME_CONTENT_ENCODING_DEFAULT));
    g_mime_part_set_content(part, content.get());
    g_mime_part_set_content_encoding(part, encoding);
}

Held<GMimeObject> TextPart(QString body)
{
    body.replace("\r\n", "\n").replace('\r', '\n').remove(QChar(0));
    if (!body.endsWith('\n'))
        body += '\n';
    GMimePart* part = g_mime_part_new_with_type("text", "plain");
    g_mime_object_set_content_type_parameter(GMIME_OBJECT(part), "charset", "utf-8");
    SetContent(part, body.toUtf8(), GMIME_CONTENT_ENCODING_QUOTEDPRINTABLE);
    return Held<GMimeObject>(GMIME_OBJECT(part));
}

Held<GMimeObject> FilePart(const QString& path)
{
    const QStringList type = QMimeDatabase().mimeTypeForFile(path).name().split('/');
    GMimePart* part =
        g_mime_part_new_with_type(type.first().toLatin1().constData(), type.last().toLatin1().constData());
    QFile file(path);
    const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    g_mime_object_set_disposition(GMIME_OBJECT(part), GMIME_DISPOSITION_ATTACHMENT);
    g_mime_part_set_filename(part, OnOneLine(QFileInfo(path).fileName()).replace("=?", "=_").toUtf8().constData());
    SetContent(part, bytes, GMIME_CONTENT_ENCODING_BASE64);
    return Held<GMimeObject>(GMIME_OBJECT(part));
}

Held<GMimeObject> Content(const MailMessage& message)
{
    Held<GMimeObject> text = TextPart(message.Body);
    if (message.Attachment.isEmpty())
        return text;
    GMimeMultipart* parts = g_mime_multipart_new_with_subtype("mixed");
    g_mime_multipart_add(parts, text.get());
    g_mime_multipart_add(parts, FilePart(message.Attachment).get());
    return Held<GMimeObject>(GMIME_OBJECT(parts));
}
} // namespace

QString BareAddress(const QString& address)
{
    const QString type = QStringLiteral("smtp:");
    const QString trimmed = address.trimmed();
    return trimmed.startsWith(type, Qt::CaseInsensitive) ? trimmed.mid(type.size()).trimmed() : trimmed;
}

bool IsMailAddress(const QString& bareAddress)
{
    static const QRegularExpression address(
        QStringLiteral("\\A[A-Za-z0-9!#$%&'*+/=?^_`{|}~][A-Za-z0-9!#$%&'*+/=?^_`{|}~.-]*@[A-Za-z0-9](?:[A-Za-z0-9.-]*"
                       "[A-Za-z0-9])?\\z"));
    return bareAddress.size() <= kLongestAddress && !bareAddress.contains("=?") &&
           address.match(bareAddress).hasMatch();
}

MailResult FaultIn(const MailMessage& message)
{
    if (!IsMailAddress(BareAddress(message.Address)))
        return {MailError::BadAddress, "This is not one e-mail address: " + OnOneLine(message.Address)};
    const QFileInfo file(message.Attachment);
    if (!message.Attachment.isEmpty() && !(file.isFile() && file.isReadable()))
        return {MailError::NoAttachment, "File not found: " + OnOneLine(message.Attachment)};
    return {};
}

QByteArray MimeText(const MailMessage& message)
{
    static const bool ready = (g_mime_init(), true);
    Q_UNUSED(ready)
    const Held<GMimeMessage> mail(g_mime_message_new(TRUE));
    SetOrigin(mail.get(), message);
    SetHeader(mail.get(), "To", PersonText({}, message.Address));
    SetHeader(mail.get(), "Subject", SubjectText(message.Subject));
    g_mime_message_set_mime_part(mail.get(), Content(message).get());
    const std::unique_ptr<char, decltype(&g_free)> text(g_mime_object_to_string(GMIME_OBJECT(mail.get()), nullptr),
                                                        &g_free);
    return QByteArray(text.get());
}
