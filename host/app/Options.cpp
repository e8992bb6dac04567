#include "host/app/Options.h"

#include "platform/core/String.h"

#include <string_view>

namespace host {

const char* const usageText =
    "Uso: quovar [FILE]\n"
    "     quovar --gallery CARTELLA [FILE]\n"
    "     quovar --results FILE\n"
    "     quovar --check FILE\n"
    "\n"
    "  FILE                   progetto .asg o modello di testo .3dd da aprire\n"
    "  --gallery CARTELLA     salva le immagini di tutte le finestre e una pagina indice, su FILE o sull'esempio\n"
    "  --results FILE         analizza il modello e stampa i risultati (CSV), senza finestre\n"
    "  --check FILE           controlla il modello e stampa i messaggi, senza finestre\n"
    "  --write-example FILE   scrive il progetto d'esempio\n"
    "  --help                 mostra questo testo\n"
    "  --version              mostra la versione\n"
    "\n"
    "Esito: 0 fatto, senza nulla da segnalare; 1 il modello ha difetti, che sono stampati; 2 il file non si legge, "
    "oppure\n"
    "il comando non si esegue o non si scrive.\n";

namespace {

struct Known {
    std::string_view name;
    Options::Action action;
    bool takesArgument;
};
const Known known[] = {
    {"--gallery", Options::Action::Gallery, true},
    {"--gallery-pictures", Options::Action::GalleryPictures, true}, // one scale; --gallery runs it
    {"--write-example", Options::Action::WriteExample, true},
    {"--results", Options::Action::Results, true},
    {"--check", Options::Action::Check, true},
    {"--help", Options::Action::Help, false},
    {"-h", Options::Action::Help, false},
    {"--version", Options::Action::Version, false},
};

bool IsGallery(Options::Action action) {
    return action == Options::Action::Gallery || action == Options::Action::GalleryPictures;
}

Options Invalid(const std::string& error) {
    return {Options::Action::Invalid, {}, {}, error};
}

} // namespace

Options ParseOptions(int argc, char** argv) {
    Options options;
    for (int i = 1; i < argc; ++i) {
        const std::string_view given = argv[i];
        if (given.empty() || given.front() != '-') {
            if (!options.argument.empty() && IsGallery(options.action) && options.model.empty()) {
                options.model = given;
                continue;
            }
            if (!options.argument.empty())
                return Invalid("Argomento in più: "_utf8 + std::string(given));
            options.argument = given;
            continue;
        }
        const Known* match = nullptr;
        for (const Known& each : known)
            if (each.name == given)
                match = &each;
        if (!match)
            return Invalid("Opzione sconosciuta: " + std::string(given));
        if (options.action != Options::Action::Open)
            return Invalid("Le opzioni si usano una alla volta: " + std::string(given));
        options.action = match->action;
        if (match->takesArgument && (i + 1 == argc || argv[i + 1][0] == '-'))
            return Invalid("Manca l'argomento di " + std::string(given));
    }
    return options;
}

} // namespace host
