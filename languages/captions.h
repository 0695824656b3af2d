#pragma once

#include <QString>

#include <functional>

/// A text of a form; the form's compiler writes a call for each that has a key. It is the form's own text
/// while the form is built, and that of the language afterwards.
QString caption(const char *text, const char *key);

namespace captions {

using Lookup = std::function<QString(const QString &key)>;

/// While one lives, captions are looked up.
class Source
{
public:
    explicit Source(const Lookup &lookup);
    ~Source();
    Source(const Source &) = delete;
    Source &operator=(const Source &) = delete;
};

/// Looks up the texts of a form that have a key, in the order of the form, and sets them.
template <class Form, class Widget>
void set(Form &form, Widget *widget, const Lookup &lookup)
{
    const Source source(lookup);
    form.retranslateUi(widget);
}

} // namespace captions
