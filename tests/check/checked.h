#pragma once

#include "check/check.h"
#include "coursetool/workspace.h"
#include "page/faces/font_book.h"

#include <string>
#include <vector>

/// A small course that has nothing to find fault with, in which a test spoils something.
struct CheckedCourse {
    CheckedCourse() {
        work.write("src/pages/1.page", page("Numeropage = 1\nIndex = 1", "##SI12\nTexte¶\n"));
        work.write("src/files/dessin.svg",
                   "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"40\" height=\"30\">"
                   "<title>Un carré</title><path d=\"M0 0h40v30z\"/></svg>");
        work.write("src/files/film.avi", "RIFF");
        work.write("src/exercises/t/chapter.toml", "Chapitre = 1\nTitre = \"T\"\nNbquest = 1\n");
        work.write("src/exercises/t/1.question",
                   question("REFERENCE = 101\ntype = 2\nsolution = \"10000\"",
                            "##EXOOP\noui¶\n##EXOOP\nnon¶\n"));
    }

    static std::string page(const std::string& fields, const std::string& body) {
        return "+++\n" + fields + "\ntitre = \"Titre\"\n+++\n" + body;
    }
    static std::string question(const std::string& fields, const std::string& body) {
        return "+++\n" + fields + "\n+++\n" + body;
    }
    /// Gives page 1 another source; it starts on line 6 of the file.
    void setBody(const std::string& body) const {
        work.write("src/pages/1.page", page("Numeropage = 1\nIndex = 1", body));
    }

    check::CheckRequest request(const std::string& directory = "src") const {
        check::CheckRequest result;
        result.course = work.path(directory);
        return result;
    }
    std::vector<check::Finding> findings(const std::string& directory = "src") const {
        return check::findingsIn(request(directory), fonts());
    }
    /// "L101 pages/1.page:7" for each.
    std::vector<std::string> told(const std::string& directory = "src") const {
        std::vector<std::string> all;
        const std::string root = work.path(directory).string() + '/';
        for (const check::Finding& finding : findings(directory)) {
            std::string place = finding.place.file;
            if (place.starts_with(root))
                place = place.substr(root.size());
            if (!finding.record.empty())
                place += ' ' + finding.record;
            if (finding.place.line > 0)
                place += ':' + std::to_string(finding.place.line);
            all.push_back(std::string(finding.rule->code) + ' ' + place);
        }
        return all;
    }

    static const page::FontBook& fonts() {
        static const page::FontBook book;
        return book;
    }

    Workspace work;
};
