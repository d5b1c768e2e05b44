#pragma once
// The day's log and other notes are stored as rich text: an RTF-style text with a font
// table, a colour table and runs of font, size, bold, italic, underline and colour in
// paragraphs. We write that subset, read it back, and can take the plain text out of any
// rich text. A text that is no rich text is kept as plain text: never lost. Rich text whose
// groups do not balance is read as well as it can be: its words, with what formatting holds,
// never its markup.
#include <QString>

class QTextDocument;

class RichText {
public:
    // True when the text opens as rich text does ("{\rtf").
    static bool IsRichText(const QString& text);

    // The document as rich text.
    static QString Write(const QTextDocument& doc);

    // Fills the document from stored text. Rich text is read with its formatting, also when
    // a brace is missing or one too many; anything else goes in as plain text, whole.
    // Returns true when the text was read as rich text.
    static bool Read(const QString& text, QTextDocument& doc);

    // The plain text of any rich text (paragraphs as "\n"); a text that is no rich text is
    // returned as it is.
    static QString PlainText(const QString& text);
};
