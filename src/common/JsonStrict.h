#pragma once
#include <QByteArray>
#include <QString>

// What a JSON reader would take by changing it, looked for in the text before it is read:
// an object that names the same key twice (the reader keeps the last), half of a UTF-16
// surrogate pair in a \u escape (the reader takes the next letter with it), and a number with more significant digits
// than a double keeps (it would be rounded). Returns why the text is refused, naming the element of the top-level array
// (from 1), the key or the number and the place in the file; "" when the text has none of these. A text that is no JSON
// at all is left to the reader, which says why.
QString VerificaJsonStrict(const QByteArray& text);
