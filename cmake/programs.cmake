# One program a driver: src/platform/<driver>/ with src/app/main_<driver>.cpp.
