// The office around the extension, as the parts of the extension reach it.
#pragma once

#include <com/sun/star/awt/XWindowPeer.hpp>
#include <com/sun/star/uno/Reference.hxx>
#include <com/sun/star/uno/XComponentContext.hpp>

#include <memory>
#include <string>

#include "frame/class/cls_Quorvex.h"
#include "host/application.h"
#include "host/platform.h"
#include "shell/form_face.h"

namespace quorvex::calc {

using Context = com::sun::star::uno::Reference<com::sun::star::uno::XComponentContext>;

/// The window that the user works in, which dialogs stand before; none in an office without
/// windows.
com::sun::star::uno::Reference<com::sun::star::awt::XWindowPeer> Front_Window(
    const Context& context);

/// The separators and the currency of the user's settings in the office, as they are at each call.
std::shared_ptr<Locale_Source> Office_Locale(const Context& context);

/// The office of some countries groups digits by the apostrophe of typewriters, which the engine
/// takes for a quote mark. There it groups by the apostrophe of print instead, and between digits
/// the one is put for the other on the way in and out.
void Read_Apostrophes(std::string& text);
void Write_Apostrophes(std::string& text);

/// Message boxes of the office; without a window to stand before, every question is answered No.
std::shared_ptr<Message_Box> Office_Message_Box(const Context& context);

/// The forms as dialogs of the office.
std::shared_ptr<Form_Face> Office_Form_Face(const Context& context);

/// The open spreadsheets.
std::shared_ptr<Host_Application> Office_Application(const Context& context);

/// An engine that knows the open spreadsheets. Fails with type_mismatch or overflow for a stored
/// limit that is no number.
std::unique_ptr<cls_Quorvex> Start_Engine(const Context& context);

/// Puts all of these in the places of the platform, once in the life of the process.
void Settle_In(const Context& context);

}  // namespace quorvex::calc
