"""Pages are printed into files, looked at in the preview, and mailed."""

TASKS = {
    "print_an_album": "paper/printing paper/print-album",
    "go_through_the_preview": "paper/print-preview",
    "save_a_pdf": "paper/print-preview",
    "save_and_load_a_document": "paper/print-preview",
    "mail_the_pages": "paper/mail paper/mail-address",
    "print_a_show": "paper/print-show",
    "print_one_slide": "paper/print-slide",
    "print_a_sheet_of_one_slide": "paper/print-slide-sheet",
}


def print_an_album(user):
    user.choose("Print", "Print Album")
    user.opened("Print Album")
    user.pick("Album", "Holiday")
    user.tab_to("Landscape")
    user.press("Right")
    user.hear("Portrait")
    user.fill("Slides Per Row", "2")
    user.tab_to("Rows Per Page")
    user.rewrite("2")
    user.press("Up")
    user.tick("Page numbers")
    user.press("Return")
    user.opened("Print Preview")


def go_through_the_preview(user):
    user.hear_at("Pages")
    user.press("Page_Down", "Page_Up", "End", "Home", "ctrl+plus", "ctrl+minus")
    user.pick("Zoom", "50")
    user.opened("Print Preview")


def save_a_pdf(user):
    user.press("ctrl+s")
    user.opened("Save Document")
    user.rewrite(user.disk.path("Album.pdf"))
    user.press("Return")
    user.disk.becomes("the PDF", lambda: user.disk.begins("Album.pdf", b"%PDF"))
    user.opened("Print Preview")


def save_and_load_a_document(user):
    user.press("ctrl+s")
    user.opened("Save Document")
    user.rewrite(user.disk.path("Album.ppd"))
    user.press("Return")
    user.disk.becomes("the document", lambda: user.disk.begins("Album.ppd", b""))
    user.opened("Print Preview")
    user.press("ctrl+o")
    user.opened("Load Document")
    user.rewrite(user.disk.path("Album.ppd"))
    user.press("Return")
    user.opened("Print Preview")


def mail_the_pages(user):
    user.press("ctrl+e")
    user.opened("Destination Email Address Entry")
    user.write("somebody@example.org")
    user.press("Return")
    user.acknowledge("There is no mail program")
    user.opened("Print Preview")
    user.press("Escape")
    user.opened("Print Album")
    user.press("Escape")
    user.at_home()


def print_a_show(user):
    user.choose("Print", "Print Slide Show")
    user.opened("Print Slide Show")
    user.pick("Album", "Holiday")
    user.pick("Slide Show", "Evening")
    user.press_on("Print Preview")
    user.opened("Print Preview")
    user.press("ctrl+s")
    user.opened("Save Document")
    user.rewrite(user.disk.path("Show.pdf"))
    user.press("Return")
    user.disk.becomes("the PDF", lambda: user.disk.begins("Show.pdf", b"%PDF"))
    user.opened("Print Preview")
    user.press("ctrl+w")
    user.opened("Print Slide Show")
    user.press("Escape")
    user.at_home()


def print_one_slide(user):
    user.press("ctrl+e")
    user.opened("Slide Manager")
    user.pick("Slide", "Rose Window")
    user.press("ctrl+p")
    user.opened("Print Slide")
    user.fill("Width in inches", "4")
    user.press("Return")
    user.opened("Print Preview")
    user.press("ctrl+s")
    user.opened("Save Document")
    user.rewrite(user.disk.path("Slide.pdf"))
    user.press("Return")
    user.disk.becomes("the PDF", lambda: user.disk.begins("Slide.pdf", b"%PDF"))
    user.opened("Print Preview")
    user.press("Escape")
    user.opened("Print Slide")
    user.press("Escape")
    user.opened("Slide Manager")


def print_a_sheet_of_one_slide(user):
    user.press_on("Print Slide Sheet")
    user.opened("Print Slide Sheet")
    user.fill("Copies Per Row", "2")
    user.press("Return")
    user.opened("Print Preview")
    user.press("Escape")
    user.opened("Print Slide Sheet")
    user.press("Escape")
    user.opened("Slide Manager")
    user.press("ctrl+F4")
    user.at_home()
