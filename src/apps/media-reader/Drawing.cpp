#include "Drawing.h"

#include "InputDevice.h"
#include "InputFile.h"

#include <QBuffer>
#include <QFont>
#include <QImageReader>
#include <QPainter>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>

namespace trel::mediareader {

namespace {

/// A drawing that is larger holds images, and would better be one.
constexpr qint64 kMostBytes = 32 * 1024 * 1024;
/// Where its first element has begun, whatever remarks stand before it.
constexpr int kHeadBytes = 16 * 1024;

/// Whether a reference stays within the drawing.
bool isInner(const QString& reference)
{
    const QString address = reference.trimmed();
    return address.startsWith(QLatin1Char('#')) ||
           address.startsWith(QLatin1String("data:"), Qt::CaseInsensitive);
}

QXmlStreamAttributes innerAttributes(const QXmlStreamAttributes& all)
{
    QXmlStreamAttributes inner;
    for (const QXmlStreamAttribute& attribute : all) {
        const bool isReference = attribute.name() == QLatin1String("href");
        if (!isReference || isInner(attribute.value().toString())) {
            inner.append(attribute);
        }
    }
    return inner;
}

void copyElement(const QXmlStreamReader& from, QXmlStreamWriter& to)
{
    to.writeStartElement(from.qualifiedName().toString());
    const auto namespaces = from.namespaceDeclarations();
    for (const QXmlStreamNamespaceDeclaration& declared : namespaces) {
        const QString prefix = declared.prefix().toString();
        to.writeAttribute(prefix.isEmpty() ? QStringLiteral("xmlns")
                                           : QStringLiteral("xmlns:") + prefix,
                          declared.namespaceUri().toString());
    }
    const QXmlStreamAttributes attributes = innerAttributes(from.attributes());
    for (const QXmlStreamAttribute& attribute : attributes) {
        to.writeAttribute(attribute.qualifiedName().toString(), attribute.value().toString());
    }
}

/// Copies elements and their text, and nothing else.
QByteArray innerDrawing(const QByteArray& svg)
{
    QByteArray copy;
    QXmlStreamReader from(svg);
    QXmlStreamWriter to(&copy);
    bool hasRoot = false;
    while (!from.atEnd()) {
        switch (from.readNext()) {
        case QXmlStreamReader::StartElement:
            if (!hasRoot && from.name() != QLatin1String("svg")) {
                return {};
            }
            hasRoot = true;
            copyElement(from, to);
            break;
        case QXmlStreamReader::EndElement:
            to.writeEndElement();
            break;
        case QXmlStreamReader::Characters:
            to.writeCharacters(from.text().toString());
            break;
        default:
            break;
        }
    }
    return from.hasError() || !hasRoot ? QByteArray() : copy;
}

} // namespace

bool isDrawing(const InputFile& file)
{
    QByteArray head(kHeadBytes, '\0');
    head.truncate(static_cast<int>(std::max<std::int64_t>(
        0, file.readAt(0, head.data(), static_cast<std::int64_t>(head.size())))));
    QXmlStreamReader reader(head);
    return reader.readNextStartElement() && reader.name() == QLatin1String("svg");
}

QByteArray readDrawing(const InputFile& file)
{
    if (file.size() > kMostBytes) {
        return {};
    }
    return innerDrawing(InputDevice(file).readAll());
}

QImage drawingImage(const InputFile& file, const QSize& bound)
{
    QByteArray drawing = readDrawing(file);
    QBuffer buffer(&drawing);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, kDrawingFormat);
    reader.setAutoDetectImageFormat(false);
    const QSize size = drawing.isEmpty() ? QSize() : reader.size();
    if (size.isEmpty()) {
        return {};
    }
    if (size.width() > bound.width() || size.height() > bound.height()) {
        reader.setScaledSize(size.scaled(bound, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    }
    return reader.read();
}

void prepareTextFonts()
{
    // A few letters of each kind of writing, since each may stand in a file of its own.
    const QString letters = QStringLiteral("Aä Я Ω 新闻 ニュース 뉴스 العربية עברית ไทย हिन्दी ●");
    QImage paper(16, 16, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&paper);
    for (const char* family : {"sans-serif", "serif", "monospace"}) {
        for (const bool isBold : {false, true}) {
            QFont font(QString::fromLatin1(family));
            font.setBold(isBold);
            painter.setFont(font);
            painter.drawText(0, 8, letters);
        }
    }
}

} // namespace trel::mediareader
