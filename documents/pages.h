// Pages of paper.
#pragma once

#include <QImage>
#include <QString>
#include <functional>
#include <string>

#include "pdf_file.h"

namespace trameli {

/// Sets a text in Markdown on A4 pages and returns the PDF file. Its first line is its title; each
/// further heading of the first order begins a page. A line with nothing but a picture,
/// "![caption](name)", becomes the picture of that name with its caption below. `facts` tell what
/// else the file says of itself.
QByteArray Pages(const QString& markdown,
                 const std::function<QImage(const std::string& name)>& picture, Facts facts);

}  // namespace trameli
