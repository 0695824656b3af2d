#include "files/report.h"

#include "app/fonts.h"
#include "document/files.h"
#include "files/options.h"
#include "files/printing.h"
#include "files/reading.h"
#include "files/reportpage.h"
#include "files/texts.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QTextDocument>

namespace {

constexpr qreal margin = 12; // mm

/// The page on one sheet of A4, made smaller where it is longer. Its title is the name of the file, where
/// there is one, without the folders, which are no customer's business.
QByteArray pdf(const QString &html, const QString &file)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    {
        constexpr int resolution = 600;
        QPdfWriter writer(&buffer);
        writer.setResolution(resolution);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setPageMargins(QMarginsF(margin, margin, margin, margin), QPageLayout::Millimeter);
        writer.setCreator(QStringLiteral("calora-files"));
        QTextDocument text;
        text.setDocumentMargin(0);
        text.documentLayout()->setPaintDevice(&writer);
        text.setHtml(html);
        writer.setTitle(file == QLatin1String("-") ? text.metaInformation(QTextDocument::DocumentTitle)
                                                   : QFileInfo(file).fileName());
        const QSizeF sheet(writer.width(), writer.height());
        // A wider page is less high, until it fits and is drawn at the sheet's size.
        qreal width = sheet.width();
        text.setTextWidth(width);
        while (text.size().height() > sheet.height() * width / sheet.width()) {
            width *= 1.03;
            text.setTextWidth(width);
        }
        QPainter painter(&writer);
        painter.scale(sheet.width() / width, sheet.width() / width);
        text.drawContents(&painter);
    }
    return bytes;
}

bool isPdf(const QString &name) { return name.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive); }

} // namespace

int report::run(const Options &options)
{
    const auto texts = printing::language(options.language);
    const Reading reading = reading::read(options.files.first());
    if (!texts || !reading.document) {
        if (texts) {
            printing::complain(options.files.first() + QStringLiteral(": ") + reading.trouble);
        }
        return 2;
    }
    loadFonts(Texts::folder());
    const Wizard::Answer answer = Wizard().ask(*reading.document);
    const ReportPage page{*reading.document, answer, *texts, options.language, options.fahrenheit};
    if (options.output.isEmpty()) {
        return printing::say(page.html(true));
    }
    const QByteArray content = isPdf(options.output) ? pdf(page.html(false), options.files.first())
                                                     : page.html(true).toUtf8();
    if (!files::replaceContent(options.output, content)) {
        printing::complain(options.output + QStringLiteral(": can't be written"));
        return 2;
    }
    return 0;
}
